// Why a transfer came to nothing, as the transport tells it; the sentence for the user is made elsewhere.
#pragma once

namespace sonaro {

enum class HttpFault {
  None,
  BadRequest,    // no host, or a request text that cannot be sent
  NoSuchHost,    // the name is not known, or there is no network
  Refused,       // nobody listens, or the host cannot be reached
  Lost,          // the connection broke while it was in use
  Silent,        // no byte came for too long
  NotHttp,       // what answered does not speak HTTP
  HeadTooLarge,  // no end of the headers
  BodyTooLarge,  // announced or sent more than is taken
  BadLength,     // an announced length that is no length
  BadChunk,      // a chunked body that does not follow the rules
  CutShort,      // the connection ended before the answer did
  TooSlow        // bytes came, but fewer than a transfer is waited for
};

}  // namespace sonaro

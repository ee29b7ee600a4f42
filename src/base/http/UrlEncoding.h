// Encoding of texts for the query of a web address, the way the service decodes it.
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

// Every byte of `text` for use in a query. Letters, digits and $ - _ . + ! * ' ( ) stay; blank, tab and
// carriage return become "+"; a line feed is dropped; any other byte is "%" and its code in upper-case
// hexadecimal WITHOUT a leading zero (5 gives "%5"), which is what the service reads. A "+" in the text stays
// "+" and so looks like a blank on the other side.
std::string UrlEncodeQuery(std::string_view text);

}  // namespace sonaro

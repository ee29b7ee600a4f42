// The configuration of a web server for the published site: static files, and one redirect that tells an
// installation whether there is anything newer than what it has.
#pragma once

#include <string>
#include <vector>

namespace sonaro {

struct NginxSite {
  std::string listen;        // "80", "127.0.0.1:8080"
  std::string serverName;    // answers requests that name no host, too
  std::string updateScript;  // paths on the host, each beginning with "/"
  std::string updateFile;
  struct Changes {
    std::string date;  // of the directory that they start from
    std::string file;
  };
  std::vector<Changes> changes;  // for installations that read them
  std::string nothingNewFile;
  std::string date;  // of the directory, as installations keep it
};

// A whole configuration: nginx -p FOLDER -c nginx.conf, where FOLDER holds it and "public", the root of the
// files. Dependencies no rights beyond those to the folder and the port.
std::string NginxConfig(const NginxSite& site);

}  // namespace sonaro

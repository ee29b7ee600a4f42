#include "site/WriteSite.h"

#include "base/Text.h"
#include "base/http/HttpRequest.h"
#include "net/UpdateFormat.h"

namespace sonaro {
namespace {

// The value of "LastUpdate" is compared as it comes, encoded; the comparison ignores letter case, which keeps
// dates apart all the same. The host of the redirect is the one that was asked, without its port:
// installations know none but 80.
constexpr std::string_view kTemplate =
    R"(# Sonaro's update service, made by sonaro-directory publish. Run it where it lies:
#   nginx -p "$PWD" -c nginx.conf              and to end it: nginx -p "$PWD" -c nginx.conf -s quit
# For a server that runs already: the map and the server, with the whole path of "public" as root.
worker_processes auto;
pid nginx.pid;
error_log error.log;
events {
  worker_connections 4096;
}
http {
  types {
    text/html html;
    text/css css;
    text/plain txt asp;
  }
  default_type application/octet-stream;
  charset utf-8;
  access_log off;  # who asks when is nobody's business
  sendfile on;
  tcp_nopush on;
  server_tokens off;
  keepalive_timeout 5;
  open_file_cache max=100;
  client_body_temp_path temp;
  proxy_temp_path temp;
  fastcgi_temp_path temp;
  uwsgi_temp_path temp;
  scgi_temp_path temp;

  map_hash_bucket_size 256;
  # Who has an earlier guide and can read changes gets what changed since.
  map "$arg_LastUpdate $arg_Version" $sonaro_update {
    default "{update}";
{changes}  }
  map $arg_LastUpdate $sonaro_answer {
    default $sonaro_update;
    "{date}" "{nothing}";
  }
  server {
    listen {listen};
    server_name {name};
    root public;
    index index.html;
    location = {script} {
      add_header Cache-Control no-store;
      return 302 http://$host$sonaro_answer;
    }
    location ^~ {updates} {
      add_header Cache-Control "public, max-age=31536000, immutable";
    }
  }
}
)";

// A line of the map for each earlier guide and each version of the program that can read changes.
std::string ChangesLines(const NginxSite& site) {
  std::string lines;
  for (const NginxSite::Changes& changes : site.changes) {
    for (const std::string_view version : update::kVersionsReadingChanges) {
      lines.append("    \"").append(UrlEncodeQuery(changes.date)).append(" ").append(UrlEncodeQuery(version));
      lines.append("\" \"").append(changes.file).append("\";\n");
    }
  }
  return lines;
}

}  // namespace

std::string NginxConfig(const NginxSite& site) {
  std::string text(kTemplate);
  const auto put = [&text](std::string_view mark, std::string_view value) {
    // Every occurrence. It ends because no value contains its own mark.
    for (std::string before; before != text;) {
      before = text;
      text = ReplaceFirst(text, mark, value);
    }
  };
  put("{listen}", site.listen);
  put("{name}", site.serverName);
  put("{script}", site.updateScript);
  put("{changes}", ChangesLines(site));
  put("{updates}", site.updateFile.substr(0, site.updateFile.find_last_of("/-") + 1));
  put("{update}", site.updateFile);
  put("{nothing}", site.nothingNewFile);
  // Encoded just as installations encode it, since the server compares the query as it comes.
  put("{date}", UrlEncodeQuery(site.date));
  return text;
}

}  // namespace sonaro

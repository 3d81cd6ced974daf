// A controller library behind COM, with the test server's own class besides.
#pragma once

#include <string>

#include "comserver/ServerHost.h"
#include "controller/com/ComLibrary.h"
#include "controller/contract/BackEnd.h"

namespace mortane::controller::test {

using comserver::ClassesOf;
using comserver::InProcessServer;
using comserver::ServerProcess;

// `Host` is an InProcessServer or a ServerProcess.
template <typename Host>
class ComBackEnd : public BackEnd {
 public:
  explicit ComBackEnd(const std::string& bench) { control_->Call("UseBench", {bench}); }

  ControllerLibrary& Library() override { return library_; }
  int LiveObjects() override { return Count("LiveObjects"); }
  int NameQueries() { return Count("NameQueries"); }
  Host& host() { return host_; }

  // Ends the server's work, if nothing else holds it.
  void ReleaseControl() { control_ = nullptr; }

 private:
  int Count(std::string_view member) { return std::get<std::int32_t>(control_->Get(member)); }

  Host host_;
  ComLibrary library_{ClassesOf(host_.Family())};
  ObjectRef control_ = library_.Create("TestControl");
};

}  // namespace mortane::controller::test

// A controller library behind COM, with the test server's own class besides.
#pragma once

#include <string>
#include <utility>

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

// The server's library in the process of a host.
class HostedBackEnd : public BackEnd {
 public:
  HostedBackEnd(comserver::HostFiles files, const std::string& bench)
      : files_(std::move(files)), registered_(files_, L"mortane_test_library.dll") {
    Control().Call("UseBench", {bench});
  }

  ControllerLibrary& Library() override { return library_; }
  int LiveObjects() override { return std::get<std::int32_t>(control_->Get("LiveObjects")); }

  // In the host's process, which may be another than before.
  ControllerObject& Control() {
    control_ = library_.Create("TestControl");
    return *control_;
  }
  comserver::HostedProcess Process() {
    return comserver::HostedProcess(
        static_cast<DWORD>(std::get<std::int32_t>(Control().Get("ProcessId"))));
  }

 private:
  comserver::HostFiles files_;
  comserver::RegisteredLibrary registered_;
  ComLibrary library_{ClassesOf(registered_.Family()), files_.Ways(), files_.Host()};
  ObjectRef control_;
};

}  // namespace mortane::controller::test

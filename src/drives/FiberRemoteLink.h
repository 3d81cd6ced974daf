// The link to the fiber illuminator's server, over which its remote is read and set.
#pragma once

#include "controller/FiberIlluminator.h"

namespace mortane {

class clsControlOther;

// Belongs to the page that makes it and lives as long. A server that is missing, has no device or
// does not answer is no failure: nothing is read from it, and nothing sent.
class FiberRemoteLink {
 public:
  explicit FiberRemoteLink(controller::ControllerLibrary& library);
  ~FiberRemoteLink();  // closes the server, also one without a device
  FiberRemoteLink(const FiberRemoteLink&) = delete;
  FiberRemoteLink& operator=(const FiberRemoteLink&) = delete;
  FiberRemoteLink(FiberRemoteLink&&) = delete;
  FiberRemoteLink& operator=(FiberRemoteLink&&) = delete;

  // Takes over whether the server answers, and what its remote is set to. A server without its
  // device is opened first, which may take a second.
  void Read(clsControlOther& other) const;
  // Sets the remote of a server that answered when it was read. Raises what the server raises.
  void Write(const clsControlOther& other) const;

 private:
  bool IsOpen() const;
  void Open() const;

  controller::FiberServer server_;
  controller::FiberRemote remote_;
};

}  // namespace mortane

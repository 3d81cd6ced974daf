// The test server's ways to serve.
#pragma once

#include <windows.h>

#include <array>
#include <string>
#include <vector>

#include "comserver/Registration.h"
#include "comserver/ServedClasses.h"
#include "controller/com/ComLibrary.h"

namespace mortane::comserver {

// A Windows handle.
class Handle {
 public:
  Handle() = default;
  explicit Handle(HANDLE handle) : handle_(handle) {}
  ~Handle() {
    if (handle_ != nullptr) CloseHandle(handle_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  HANDLE get() const { return handle_; }

 private:
  HANDLE handle_ = nullptr;
};

// Identifiers that nothing on this machine has.
ClassFamily NewFamily();

// The classes of a family as a library takes them: by identifiers instead of registered names.
std::vector<controller::ComClass> ClassesOf(const ClassFamily& family);

// A file of the test server, which stands beside the test program.
std::wstring ServerFile(const wchar_t* name);

// The server's library in this process, its classes known to this process alone and not to the
// system. The calling thread enters its single-threaded apartment.
class InProcessServer {
 public:
  InProcessServer();
  ~InProcessServer();
  InProcessServer(const InProcessServer&) = delete;
  InProcessServer& operator=(const InProcessServer&) = delete;

  const ClassFamily& Family() const { return kInProcessFamily; }

 private:
  std::array<DWORD, kClassNames.size()> cookies_{};
};

// The server's program, whose classes no other process of its kind has. It ends when its last
// object is gone; it is killed with this object, and with this process.
class ServerProcess {
 public:
  // Returns when its classes can be created.
  explicit ServerProcess(const ClassFamily& family = NewFamily());
  ~ServerProcess();
  ServerProcess(const ServerProcess&) = delete;
  ServerProcess& operator=(const ServerProcess&) = delete;

  const ClassFamily& Family() const { return family_; }

  // Returns when it has ended.
  void Kill();

  // Whether it ends by itself within so many milliseconds.
  bool EndsWithin(DWORD milliseconds) const;

 private:
  ClassFamily family_;
  Handle job_;
  PROCESS_INFORMATION process_{};
};

// A library of the tests and the host that loads it, both of 64 bits or both of 32.
struct HostFiles {
  std::wstring folder;
  // Those of 32 bits are registered for programs of 32 bits alone, and found without being asked
  // for.
  bool are32 = false;

  std::wstring File(const wchar_t* name) const { return folder + name; }
  std::wstring Host() const { return File(L"mortane-host32.exe"); }
  controller::LibraryWays Ways() const;
};

// Those beside the test program, of its own 64 bits.
HostFiles OwnHostFiles();
// Those and, in the folder that MORTANE_TEST_HOST32 names, the ones of 32 bits.
std::vector<HostFiles> AllHostFiles();

// A library of the tests, registered under identifiers that nothing else has, for as long as this
// object lives. One at a time in a process.
class RegisteredLibrary {
 public:
  RegisteredLibrary(const HostFiles& files, const wchar_t* library);
  ~RegisteredLibrary();
  RegisteredLibrary(const RegisteredLibrary&) = delete;
  RegisteredLibrary& operator=(const RegisteredLibrary&) = delete;

  const ClassFamily& Family() const { return entry_.family; }
  // A registered name of a class instead of its identifier.
  std::wstring Name(std::size_t place) const { return ProgId(entry_.progIdPrefix, place); }

 private:
  Registration entry_;
};

// A process that something else started.
class HostedProcess {
 public:
  explicit HostedProcess(DWORD id);

  DWORD Id() const { return id_; }
  // Returns when it has ended.
  void Kill() const;
  bool EndsWithin(DWORD milliseconds) const;
  bool Is32Bit() const;

 private:
  DWORD id_;
  Handle process_;
};

// Names for the server's classes in the system's list, which nothing else uses and which go with
// this object.
class RegisteredNames {
 public:
  RegisteredNames();
  ~RegisteredNames();
  RegisteredNames(const RegisteredNames&) = delete;
  RegisteredNames& operator=(const RegisteredNames&) = delete;

  // The system starts the server's program for these classes when none runs.
  void PointTo(const ClassFamily& family);

  std::vector<controller::ComClass> Classes() const;

 private:
  Registration Entry() const;

  std::wstring prefix_;
  ClassFamily family_{};
};

}  // namespace mortane::comserver

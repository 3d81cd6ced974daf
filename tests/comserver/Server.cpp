#include "comserver/Server.h"

#include <windows.h>

#include <algorithm>
#include <memory>
#include <string>

#include "comserver/ServedClasses.h"
#include "controller/simulator/BenchFile.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/MemberObject.h"
#include "controller/simulator/RealClock.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "platform/windows/Wide.h"

namespace mortane::comserver {
namespace {

using controller::Args;
using controller::Bench;
using controller::MemberTable;
using controller::SimulatedLibrary;
using controller::Value;
namespace benches = controller::benches;

struct UseCount {
  long count = 0;
  std::function<void()> unused;
};

UseCount& Uses() {
  static UseCount uses;
  return uses;
}

std::string EnvironmentText(const wchar_t* name) {
  std::wstring text(32768, L'\0');
  text.resize(GetEnvironmentVariableW(name, text.data(), static_cast<DWORD>(text.size())));
  return ToUtf8(text);
}

bool IsNamedBench(const std::string& text) {
  const auto names = benches::Names();
  return std::find(names.begin(), names.end(), text) != names.end();
}

std::unique_ptr<SimulatedLibrary> MakeLibrary(const std::string& bench) {
  const bool named = bench.empty() || IsNamedBench(bench);
  auto library = std::make_unique<SimulatedLibrary>(
      named ? benches::Named(bench.empty() ? "Quay" : bench) : controller::ReadBenchFile(bench),
      std::make_shared<controller::RealClock>());
  if (!named) {
    library->OnChange([bench](const Bench& now) { controller::WriteBenchFile(bench, now); });
  }
  return library;
}

std::unique_ptr<SimulatedLibrary>& Library() {
  static auto library = MakeLibrary(EnvironmentText(L"MORTANE_SERVER_BENCH"));
  return library;
}

struct NoState {};

controller::ObjectRef MakeTestControl() {
  static const MemberTable<NoState> members =
      MemberTable<NoState>()
          .OnGet("LiveObjects", 0,
                 [](NoState&, Args) -> Value { return static_cast<std::int32_t>(LiveObjects()); })
          .OnGet("NameQueries", 0,
                 [](NoState&, Args) -> Value { return static_cast<std::int32_t>(NameQueries()); })
          .OnGet("ProcessId", 0,
                 [](NoState&, Args) -> Value {
                   return static_cast<std::int32_t>(GetCurrentProcessId());
                 })
          // Objects of the bench before stay with it.
          .OnCall("UseBench", 1, [](NoState&, Args args) -> Value {
            Library() = MakeLibrary(controller::TextArgument(args[0]));
            return {};
          });
  return controller::MakeObject(members);
}

}  // namespace

void LockServer() {
  ++Uses().count;
}

void UnlockServer() {
  if (--Uses().count == 0 && Uses().unused) Uses().unused();
}

bool IsServerUsed() {
  return Uses().count != 0;
}

void OnServerUnused(std::function<void()> unused) {
  Uses().unused = std::move(unused);
}

long& LiveObjects() {
  static long count = 0;
  return count;
}

long& NameQueries() {
  static long count = 0;
  return count;
}

controller::ObjectRef CreateServed(std::size_t place) {
  return place == kTestControl ? MakeTestControl() : Library()->Create(kClassNames.at(place));
}

}  // namespace mortane::comserver

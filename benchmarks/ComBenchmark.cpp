// What the program's layer over COM costs: a property read beside a bare call, and a whole Receive.
#include <objbase.h>
#include <oleauto.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "SilentPrompts.h"
#include "comserver/ServerHost.h"
#include "controller/Journal.h"
#include "controller/Microscope.h"
#include "controller/com/ComPointer.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "hub/clsK70.h"

namespace mortane::controller {
namespace {

using Clock = std::chrono::steady_clock;
using comserver::InProcessServer;
using comserver::ServerProcess;

double Nanoseconds(Clock::duration time) {
  return std::chrono::duration<double, std::nano>(time).count();
}

// Median time of one step over many rounds.
class Stopwatch {
 public:
  explicit Stopwatch(int steps) : steps_(steps) {}

  void Round(const std::function<void()>& step) {
    const Clock::time_point start = Clock::now();
    for (int i = 0; i < steps_; ++i) step();
    times_.push_back(Nanoseconds(Clock::now() - start) / steps_);
  }
  double Median() {
    std::sort(times_.begin(), times_.end());
    return times_.at(times_.size() / 2);
  }

 private:
  int steps_;
  std::vector<double> times_;
};

// A library on the bench "Quay".
template <typename Host>
struct Served {
  Host host;
  ComLibrary library{comserver::ClassesOf(host.Family())};
  ObjectRef control = library.Create("TestControl");  // keeps the server running
};

// Objects reached without the program's layer.
class Bare {
 public:
  explicit Bare(const CLSID& id) {
    void* made = nullptr;
    CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch, &made);
    object_ = ComPointer<IDispatch>(static_cast<IDispatch*>(made));
  }
  explicit Bare(ComPointer<IDispatch> object) : object_(std::move(object)) {}

  DISPID Id(const wchar_t* name) const {
    std::wstring text = name;
    LPOLESTR names = text.data();
    DISPID id = DISPID_UNKNOWN;
    object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
    return id;
  }

  VARIANT Invoke(DISPID id, WORD flags, VARIANT* argument = nullptr) const {
    DISPID put = DISPID_PROPERTYPUT;
    const bool writes = (flags & DISPATCH_PROPERTYPUTREF) != 0;
    DISPPARAMS parameters{argument, writes ? &put : nullptr, argument == nullptr ? 0U : 1U,
                          writes ? 1U : 0U};
    VARIANT result{};
    EXCEPINFO told{};
    object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &result, &told, nullptr);
    return result;
  }

  Bare Object(const wchar_t* name, VARIANT* argument = nullptr) const {
    return Bare(ComPointer<IDispatch>(Invoke(Id(name), DISPATCH_PROPERTYGET, argument).pdispVal));
  }

  IDispatch* get() const { return object_.get(); }

 private:
  ComPointer<IDispatch> object_;
};

Bare ConnectedBareRoot(const CLSID& id) {
  Bare root(id);
  VARIANT index{};
  index.vt = VT_I4;
  const Bare entry = root.Object(L"DeviceList").Object(L"Item", &index);
  VARIANT device{};
  device.vt = VT_DISPATCH;
  device.pdispVal = entry.get();
  root.Invoke(root.Id(L"CurrentDevice"), DISPATCH_PROPERTYPUTREF, &device);
  entry.Invoke(entry.Id(L"Connect"), DISPATCH_METHOD);
  return root;
}

Microscope ConnectedRoot(ControllerLibrary& library) {
  const Microscope root(library.Create("Microscope"));
  root.PutCurrentDevice(root.DeviceList().Item(0));
  root.DeviceList().Item(0).Connect();
  return root;
}

// The same reads, turn about, so that both meet the same machine.
void Compare(const char* what, int steps, const std::function<void()>& bare,
             const std::function<void()>& layer) {
  Stopwatch bareTime(steps);
  Stopwatch layerTime(steps);
  for (int round = 0; round < 101; ++round) {
    bareTime.Round(bare);
    layerTime.Round(layer);
  }
  std::printf("%-34s bare %9.0f ns  layer %9.0f ns  ratio %.2f\n", what, bareTime.Median(),
              layerTime.Median(), layerTime.Median() / bareTime.Median());
}

template <typename Host>
void MeasureReads(const char* where, int steps) {
  Served<Host> served;
  const Bare root = ConnectedBareRoot(served.host.Family().ClassId(0));
  const Microscope microscope = ConnectedRoot(served.library);
  std::printf("%s\n", where);

  const Bare drive = root.Object(L"ZDriveDevice");
  const DISPID knob = drive.Id(L"KnobAuto");
  const ZDriveDevice seen = microscope.ZDriveDevice();
  Compare(
      "  long", steps, [&] { drive.Invoke(knob, DISPATCH_PROPERTYGET); }, [&] { seen.KnobAuto(); });

  VARIANT index{};
  index.vt = VT_I4;
  index.lVal = 2;
  const Bare record =
      root.Object(L"AccessoryDatabase").Object(L"Nosepieces").Object(L"Item", &index);
  const DISPID name = record.Id(L"Name");
  const ObjectiveRecord seenRecord = microscope.AccessoryDatabase().Nosepieces().Item(2);
  Compare(
      "  text", steps,
      [&] {
        VARIANT text = record.Invoke(name, DISPATCH_PROPERTYGET);
        VariantClear(&text);
      },
      [&] { seenRecord.Name(); });

  const DISPID nosepiece = root.Id(L"NosepieceDevice");
  const DISPID position = root.Object(L"NosepieceDevice").Id(L"Position");
  Compare(
      "  number by way of two objects", steps,
      [&] {
        const Bare device(
            ComPointer<IDispatch>(root.Invoke(nosepiece, DISPATCH_PROPERTYGET).pdispVal));
        const Bare state(
            ComPointer<IDispatch>(device.Invoke(position, DISPATCH_PROPERTYGET).pdispVal));
        state.Invoke(DISPID_VALUE, DISPATCH_PROPERTYGET);
      },
      [&] { microscope.NosepieceDevice().Position().Number(); });
}

// The same calls, turn about, to a server's process and to the host's.
void CompareHost(int steps) {
  Served<ServerProcess> server;
  const comserver::HostFiles files = comserver::AllHostFiles().back();
  const comserver::RegisteredLibrary registered(files, L"mortane_test_library.dll");
  ComLibrary hosted(comserver::ClassesOf(registered.Family()), files.Ways(), files.Host());
  const Microscope inServer = ConnectedRoot(server.library);
  const Microscope inHost = ConnectedRoot(hosted);
  const ZDriveDevice serverDrive = inServer.ZDriveDevice();
  const ZDriveDevice hostDrive = inHost.ZDriveDevice();
  Stopwatch serverTime(steps);
  Stopwatch hostTime(steps);
  for (int round = 0; round < 101; ++round) {
    serverTime.Round([&] { serverDrive.KnobAuto(); });
    hostTime.Round([&] { hostDrive.KnobAuto(); });
  }
  std::printf(
      "a call of a server's process %9.0f ns  of the host of %d bits %9.0f ns  ratio %.2f\n",
      serverTime.Median(), files.are32 ? 32 : 64, hostTime.Median(),
      hostTime.Median() / serverTime.Median());
}

void MeasureReceive(const char* where, ControllerLibrary& library, int rounds) {
  SilentPrompts prompts;
  std::size_t calls = 0;
  {
    Journal journal;
    JournalLibrary counted(library, journal);
    clsK70 k70(counted, prompts);
    k70.Initialize();
    k70.Connect(0);
    journal.Clear();
    k70.Receive();
    calls = journal.CallCount();
  }
  clsK70 k70(library, prompts);
  k70.Initialize();
  k70.Connect(0);
  k70.Receive();
  Stopwatch time(1);
  for (int i = 0; i < rounds; ++i) time.Round([&] { k70.Receive(); });
  std::printf("Receive %-26s %zu calls  %8.3f ms  %8.0f ns a call\n", where, calls,
              time.Median() / 1e6, time.Median() / static_cast<double>(calls));
}

void Run() {
  MeasureReads<InProcessServer>("in this process", 5000);
  MeasureReads<ServerProcess>("in another process", 5);
  CompareHost(5);
  SimulatedLibrary inPlace(benches::Named("Quay"));
  MeasureReceive("in place", inPlace, 101);
  Served<InProcessServer> inProcess;
  MeasureReceive("in this process", inProcess.library, 101);
  Served<ServerProcess> ownProcess;
  MeasureReceive("in another process", ownProcess.library, 3);
}

}  // namespace
}  // namespace mortane::controller

int main() {
  mortane::controller::Run();
  return 0;
}

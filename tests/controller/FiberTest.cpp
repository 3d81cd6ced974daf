#include <gtest/gtest.h>

#include "controller/ControllerError.h"
#include "controller/FiberIlluminator.h"
#include "controller/SimulatedRig.h"

namespace mortane::controller::test {
namespace {

constexpr FiberData kClosed{true, false, true, 4, 1, 2};

TEST(Fiber, ThatIsNotInstalledCannotBeCreated) {
  SimulatedLibrary library(benches::Named("Harbour"));
  EXPECT_THROW(library.Create("FiberServer"), ControllerError);
  EXPECT_THROW(library.Create("FiberRemote"), ControllerError);
}

TEST(Fiber, OpensAndCloses) {
  SimulatedLibrary library(benches::Named("Harbour"));
  library.bench().fiber = kClosed;
  const FiberServer server(library.Create("FiberServer"));
  EXPECT_FALSE(server.IsOpen());
  server.Open(1000);
  EXPECT_TRUE(server.IsOpen());
  EXPECT_EQ(server.Status(), 4);
  server.Close();
  EXPECT_FALSE(server.IsOpen());
}

TEST(Fiber, StaysClosedWhenItsDeviceIsAway) {
  SimulatedLibrary library(benches::Named("Harbour"));
  library.bench().fiber = {true, false, false, 4, 1, 2};
  const FiberServer server(library.Create("FiberServer"));
  EXPECT_THROW(server.Open(1000), ControllerError);
  EXPECT_FALSE(server.IsOpen());
}

TEST(Fiber, MayReturnFromOpeningWithoutItsDevice) {
  SimulatedLibrary library(benches::Named("Harbour"));
  library.bench().fiber = kClosed;
  library.bench().fiber.opens = false;
  library.bench().fiber.openRaises = false;
  const FiberServer server(library.Create("FiberServer"));
  const FiberRemote remote(library.Create("FiberRemote"));
  EXPECT_NO_THROW(server.Open(1000));
  EXPECT_FALSE(server.IsOpen());
  EXPECT_EQ(server.Status(), 4);
  EXPECT_THROW(remote.LED(), ControllerError);
}

TEST(Fiber, AnswersAndKeepsAnyValueWhileItIsOpen) {
  SimulatedLibrary library(benches::Named("Quay"));
  const FiberRemote remote(library.Create("FiberRemote"));
  EXPECT_EQ(remote.SwitchEnable(), 1);
  EXPECT_EQ(remote.LED(), 2);
  for (const std::int16_t value :
       {std::int16_t{0}, std::int16_t{1}, std::int16_t{3}, std::int16_t{5}}) {
    remote.PutSwitchEnable(value);
    remote.PutLED(static_cast<std::int16_t>(value + 1));
    EXPECT_EQ(remote.SwitchEnable(), value);
    EXPECT_EQ(library.bench().fiber.led, value + 1);
  }
}

TEST(Fiber, AnswersNothingWhileItIsClosed) {
  SimulatedLibrary library(benches::Named("Harbour"));
  library.bench().fiber = kClosed;
  const FiberRemote remote(library.Create("FiberRemote"));
  EXPECT_THROW(remote.LED(), ControllerError);
  EXPECT_THROW(remote.PutSwitchEnable(1), ControllerError);
}

}  // namespace
}  // namespace mortane::controller::test

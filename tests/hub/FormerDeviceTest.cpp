// What a model holds of the microscope that it was connected to before, and of a call that failed.
#include <gtest/gtest.h>

#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "support/Rig.h"
#include "support/Sample.h"

namespace mortane::test {
namespace {

using Lines = std::vector<std::string>;

// The units keep these where the controller has none: the escapes of the drives, the modes of the
// hand controller and, as the last digit of their codes, the condensers of the user's objectives.
bool IsKept(const DomNode& element) {
  return element.Name().starts_with("Escape_") || element.Name() == "SETTING";
}

void AddElement(Lines& lines, const std::string& path, const DomNode& element) {
  if (IsKept(element)) return;
  const std::string name = path + "/" + element.Name();
  std::string line = name;
  for (const DomAttribute& attribute : element.Attributes()) {
    std::string value = attribute.value;
    if (name == "/Setup/NOSEPIECE/OPTION" && attribute.name == "CODE") value.pop_back();
    line += " " + attribute.name + "=" + value;
  }
  lines.push_back(line);
  for (const DomNode& child : element.Children()) AddElement(lines, name, child);
}

// All but what units keep.
Lines ModelOf(const clsK70& k70) {
  Lines lines{k70.SystemName, std::to_string(k70.lConnectDevice),
              std::to_string(k70.CXYDrive.NoseCount), std::to_string(k70.CZDrive.NoseCount)};
  for (std::int32_t i = 1; i <= 14; ++i) lines.push_back(std::to_string(k70.IsMounted(i)));
  for (std::int32_t i = 0; i <= 6; ++i) lines.emplace_back(k70.Controller(i) ? "yes" : "no");
  DomDocument document;
  k70.WriteSections(document);
  AddElement(lines, "", document.Children().at(0));
  return lines;
}

// The instrument with odd values makes a Receive show boxes.
Lines AfterConnecting(Rig& rig, std::int32_t device) {
  rig.prompts.AcceptAnyBox();
  EXPECT_TRUE(rig.k70.Connect(device));
  rig.k70.Receive();
  return ModelOf(rig.k70);
}

Lines InstrumentNames() {
  Lines names = benches::Names();
  std::erase(names, "Crowd");
  return names;
}

class FormerDevice : public testing::TestWithParam<std::size_t> {};

TEST_P(FormerDevice, LeavesNothingButWhatUnitsKeep) {
  const Lines names = InstrumentNames();
  const std::string& former = names.at(GetParam());
  for (const std::string& name : ColumnsOfRow(GetParam(), names, 4)) {
    Rig fresh(List({"Quay", name, former}));
    Rig rig(List({"Quay", name, former}));
    AfterConnecting(rig, 2);
    EXPECT_EQ(AfterConnecting(rig, 1), AfterConnecting(fresh, 1)) << former << ", then " << name;
  }
}

INSTANTIATE_TEST_SUITE_P(Instruments, FormerDevice,
                         testing::Range(std::size_t{0}, InstrumentNames().size()),
                         [](const auto& row) { return InstrumentNames().at(row.param); });

// The calls that the act makes on a connected microscope.
std::size_t CallsOf(void (*act)(Rig&)) {
  Rig rig("Harbour");
  rig.Connect();
  act(rig);
  return rig.journal.CallCount();
}

void Connect(Rig& rig) {
  rig.k70.Connect(1);
}

void Receive(Rig& rig) {
  rig.k70.Receive();
}

TEST(FailedCall, OfAConnectionOrAReceiveLeavesNothingAfterTheNextOne) {
  Rig fresh("Harbour");
  const Lines expected = AfterConnecting(fresh, 1);
  for (void (*act)(Rig&) : {Connect, Receive}) {
    for (const std::size_t k : SampleOf(CallsOf(act), 23)) {
      Rig rig("Harbour");
      rig.prompts.AcceptAnyBox();
      rig.Connect();
      rig.faults.FailCall(k);
      act(rig);
      EXPECT_EQ(rig.faults.Hits(), 1U) << k;
      EXPECT_EQ(AfterConnecting(rig, 1), expected) << k;
    }
  }
}

}  // namespace
}  // namespace mortane::test

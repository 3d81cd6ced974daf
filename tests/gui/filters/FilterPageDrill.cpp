// The drill of the filter pages.
#include <map>

#include "gui/filters/FilterPages.h"
#include "gui/support/PageActs.h"
#include "gui/support/PageDrill.h"

namespace mortane::test {
namespace {

constexpr char kDashes[] = "----------";

template <int Address>
std::string CodeAt(FilterUnits& k70) {
  return std::to_string(k70.curFilter.code(Address));
}

template <int Code>
void Mount(FilterUnits& k70) {
  k70.curFilter.code(1, Code);
}

std::vector<AccessibleControl> AccessibleTurret() {
  return {
      told::Group("Set Filter Cube Data to Each Address"),
      told::Label("Set Filter Cube Data to Each Address"),
      told::Tabs("Address", "1"),
      told::Group("Filter Turret"),
      told::Chosen("Address 1, UV Blue"),
      told::NotChosen("Address 2, Violet"),
      told::NotChosen("Address 3, Green"),
      told::NotChosen("Address 4, Yellow"),
      told::NotChosen("Address 5, Orange"),
      told::NotChosen("Address 6, Empty"),
      told::List("Filter Cubes", "Name UV Blue, Exciter 365/10, Dichroic DM 400, Barrier 460/50"),
      told::Label("Name"),
      told::Value("Name", "UV Blue"),
      told::Label("Exciter"),
      told::Value("Exciter", "365/10"),
      told::Label("Dichroic"),
      told::Value("Dichroic", "DM 400"),
      told::Label("Barrier"),
      told::Value("Barrier", "460/50"),
  };
}

PageDrillData Turret() {
  PageDrillData data;
  data.name = "Turret";
  data.without = {DrillTable::Refused, DrillTable::Enabling};
  data.bench = "Harbour";
  data.make = MakeFilterQubeCtl;
  data.controls = {
      {"FrameBase", "Set Filter Cube Data to Each Address"},
      {"Frm1", ""},
      {"Label1", "Name"},
      {"Label2", "Exciter"},
      {"Label3", "Dichroic"},
      {"Label4", "Barrier"},
      {"LabelName", "UV Blue"},
      {"LabelExciter", "365/10"},
      {"LabelDichroic", "DM 400"},
      {"LabelBarrier", "460/50"},
  };
  data.shown = {
      {"LabelName", Mount<5>, CodeAt<1>, "Green"},
      {"LabelExciter", Mount<5>, CodeAt<1>, "470/40"},
      {"LabelDichroic", Mount<5>, CodeAt<1>, "DM 495"},
      {"LabelBarrier", Mount<5>, CodeAt<1>, "525/50"},
      {"List1", Mount<10>, CodeAt<1>, "Far red\t620/60\tDM 660\t700/75"},
      {"List1", Mount<241>, CodeAt<1>, "Ratio\t387/11\tDM 495\t525/50"},
      {"LabelExciter", Mount<241>, CodeAt<1>, "387/11"},
      {"List1", Mount<1>, CodeAt<1>, "Empty\t\t\t"},
      {"List1", Mount<0>, CodeAt<1>, "\t\t\t"},
      {"LabelName", Mount<0>, CodeAt<1>, ""},
      {"List1", Mount<242>, CodeAt<1>, ""},
      {"LabelName", Mount<100>, CodeAt<1>, ""},
      {"TabPocket", Mount<5>, CodeAt<1>, "1"},
  };
  data.edits = {
      {"List1", "Violet\t405/20\tDM 430\t480/40", CodeAt<1>, "3"},
      {"List1", "\t\t\t", CodeAt<1>, "0"},
      {"List1", "Ratio\t387/11\tDM 495\t525/50", CodeAt<1>, "241"},
  };
  data.tabOrder = {"TabPocket", "place_1", "List1"};
  data.accessible = AccessibleTurret();
  return data;
}

std::string FirstCube(FilterUnits& k70) {
  std::string name;
  std::int32_t exciter = 0;
  std::int32_t dichroic = 0;
  std::int32_t barrier = 0;
  k70.dbFilter.Get_DbFilterOption(1, name, exciter, dichroic, barrier);
  return name + "," + std::to_string(exciter) + "," + std::to_string(dichroic) + "," +
         std::to_string(barrier);
}

std::function<void(FilterUnits&)> Put(const char* name, int exciter, int dichroic, int barrier) {
  return [=](FilterUnits& k70) {
    k70.dbFilter.Set_DbFilterOption(1, name, exciter, dichroic, barrier);
  };
}

PageDrillData OptionalCube() {
  PageDrillData data;
  data.name = "OptionalCube";
  data.without = {DrillTable::Refused, DrillTable::Enabling};
  data.bench = "Harbour";
  data.make = MakeFilterOptionalQubeCtl;
  data.controls = {
      {"FrameBase", "Add Optional Filter Cube Data to the List"},
      {"frm2", ""},
      {"Label1", "Name"},
      {"Label2", "Exciter"},
      {"Label3", "Dichroic"},
      {"Label4", "Barrier"},
      {"LabelExciter", "387/11"},
      {"LabelDichroic", "DM 495"},
      {"LabelBarrier", "525/50"},
      {"ListExciter", "Exciter"},
      {"ListDichroic", "Dichroic"},
      {"ListBarrier", "Barrier"},
  };
  data.shown = {
      {"TextName", Put("Two", 1, 2, 3), FirstCube, "Two"},
      {"TextName", Put("----------", 1, 2, 3), FirstCube, "----------"},
      {"LabelExciter", Put("Two", 1, 2, 3), FirstCube, "340/26"},
      {"LabelDichroic", Put("Two", 1, 2, 3), FirstCube, "DM 430"},
      {"LabelBarrier", Put("Two", 1, 2, 3), FirstCube, "480/40"},
      {"ListExciter", Put("Two", 242, 2, 3), FirstCube, "488/6"},
      {"ListDichroic", Put("Two", 1, 241, 3), FirstCube, "DM 409"},
      {"ListBarrier", Put("Two", 1, 2, 241), FirstCube, "Quad"},
      {"ListBarrier", Put("Two", 1, 2, 0), FirstCube, ""},
      {"LabelBarrier", Put("Two", 1, 2, 249), FirstCube, ""},
      {"TabOption", Put("Two", 1, 2, 3), FirstCube, "1"},
  };
  data.edits = {
      {"TextName", "Two", FirstCube, "Two,241,4,5"},
      {"TextName", "Eleven char", FirstCube, "Eleven cha,241,4,5"},
      {"TextName", "", FirstCube, ",241,4,5"},
      {"ListExciter", "488/6", FirstCube, "Ratio,242,4,5"},
      {"ListExciter", "", FirstCube, "Ratio,0,4,5"},
      {"ListDichroic", "DM 409", FirstCube, "Ratio,241,241,5"},
      {"ListBarrier", "LP 420", FirstCube, "Ratio,241,4,1"},
  };
  data.tabOrder = {"TabOption", "TextName", "ListExciter", "ListDichroic", "ListBarrier"};
  data.accessible = {
      told::Group("Add Optional Filter Cube Data to the List"),
      told::Label("Add Optional Filter Cube Data to the List"),
      told::Tabs("Position", "1"),
      told::Label("Name"),
      told::Field("Name", "Ratio"),
      told::Label("Exciter"),
      told::Value("Exciter", "387/11"),
      told::List("Exciter", "387/11"),
      told::Label("Dichroic"),
      told::Value("Dichroic", "DM 495"),
      told::List("Dichroic", "DM 495"),
      told::Label("Barrier"),
      told::Value("Barrier", "525/50"),
      told::List("Barrier", "525/50"),
  };
  return data;
}

template <FilterItem kItem>
std::function<std::string(FilterUnits&)> NameOf(FilterItemNames<kItem> FilterUnits::*list,
                                                int code) {
  return [=](FilterUnits& k70) { return (k70.*list).Name(code); };
}

template <FilterItem kItem>
std::function<void(FilterUnits&)> PutName(FilterItemNames<kItem> FilterUnits::*list, int code,
                                          const char* name) {
  return [=](FilterUnits& k70) { (k70.*list).Name(code, name); };
}

PageDrillData OptionalItem() {
  PageDrillData data;
  data.name = "OptionalItem";
  data.without = {DrillTable::Refused, DrillTable::Enabling};
  data.bench = "Harbour";
  data.make = MakeFilterOptionalItemCtl;
  data.controls = {{"FrameBase", "Add Optional Filter Data "},
                   {"Label1", "Exciter"},
                   {"Label2", "Dichroic"},
                   {"Label3", "Barrier"}};
  data.accessible = {told::Group("Add Optional Filter Data "),
                     told::Label("Add Optional Filter Data "), told::Label("Exciter"),
                     told::Label("Dichroic"), told::Label("Barrier")};
  const std::map<std::string, const char*> named{{"TextExciter_0", "387/11"},
                                                 {"TextDichroic_0", "DM 409"},
                                                 {"TextBarrier_0", "Quad"},
                                                 {"TextExciter_1", "488/6"}};
  for (int row = 0; row < 9; ++row) {
    const std::string number = std::to_string(row + 1);
    data.controls.push_back({Numbered("Label11", row), number});
    data.accessible.push_back(told::Label(number));
    for (const char* kind : {"Exciter", "Dichroic", "Barrier"}) {
      const std::string field = Numbered((std::string("Text") + kind).c_str(), row);
      data.controls.push_back({field, std::string(kind) + " " + number});
      data.tabOrder.push_back(field);
      data.accessible.push_back(told::Field(std::string(kind) + " " + number,
                                            named.contains(field) ? named.at(field) : kDashes));
    }
  }
  data.shown = {
      {"TextExciter_0", PutName(&FilterUnits::Exciter, 241, "Ex"),
       NameOf(&FilterUnits::Exciter, 241), "Ex"},
      {"TextDichroic_3", PutName(&FilterUnits::Dichroic, 244, " Di "),
       NameOf(&FilterUnits::Dichroic, 244), " Di "},
      {"TextBarrier_8", PutName(&FilterUnits::Barrier, 249, "Ba"),
       NameOf(&FilterUnits::Barrier, 249), "Ba"},
      {"TextExciter_1", PutName(&FilterUnits::Exciter, 242, ""), NameOf(&FilterUnits::Exciter, 242),
       "----------"},
      {"TextDichroic_1", PutName(&FilterUnits::Dichroic, 242, "   "),
       NameOf(&FilterUnits::Dichroic, 242), "----------"},
      {"TextBarrier_1", PutName(&FilterUnits::Barrier, 242, "---------"),
       NameOf(&FilterUnits::Barrier, 242), "---------"},
  };
  data.edits = {
      {"TextExciter_0", "Ex", NameOf(&FilterUnits::Exciter, 241), "Ex"},
      {"TextExciter_8", "Ten chars.", NameOf(&FilterUnits::Exciter, 249), "Ten chars."},
      {"TextDichroic_4", "Eleven char", NameOf(&FilterUnits::Dichroic, 245), "Eleven cha"},
      {"TextBarrier_0", "", NameOf(&FilterUnits::Barrier, 241), ""},
      {"TextBarrier_7", " Ba", NameOf(&FilterUnits::Barrier, 248), " Ba"},
  };
  return data;
}

PageDrillData Settings() {
  PageDrillData data;
  data.name = "Settings";
  data.without = {DrillTable::Refused};
  data.bench = "Harbour";
  data.make = MakeFilterQubeSettingsCtl;
  data.controls = {
      {"Header", ""},
      {"optFilterSetting_0", "Filter Cube"},
      {"optFilterSetting_1", "Optional Cube"},
      {"optFilterSetting_2", "Optional Item"},
      {"FilterQubeCtl1", ""},
      {"FilterOptionalQubeCtl1", ""},
      {"FilterOptionalItemCtl1", ""},
  };
  data.shown = {{"List1", Mount<10>, CodeAt<1>, "Far red\t620/60\tDM 660\t700/75"}};
  data.edits = {{"List1", "Violet\t405/20\tDM 430\t480/40", CodeAt<1>, "3"}};
  data.enabling = {
      {"optFilterSetting_0", "Harbour", {}, true},
      {"optFilterSetting_0", "Harbour", Without<accessory::kFilterCube>, false},
      {"optFilterSetting_0", "Harbour",
       [](Bench& bench) { Fit(bench.instruments.back(), accessory::kFilterCube, kSensorOnly); },
       true},
      {"optFilterSetting_1", "Harbour", Without<accessory::kFilterCube>, true},
      {"optFilterSetting_2", "Harbour", Without<accessory::kFilterCube>, true},
  };
  data.tabOrder = {"optFilterSetting_0", "TabPocket", "place_1", "List1"};
  data.accessible = {told::Heading("Filter Cubes"), told::Group("Filter Cubes"),
                     told::Chosen("Filter Cube"), told::NotChosen("Optional Cube"),
                     told::NotChosen("Optional Item")};
  for (AccessibleControl& control : AccessibleTurret()) {
    data.accessible.push_back(std::move(control));
  }
  return data;
}

INSTANTIATE_TEST_SUITE_P(Filters, PageDrill,
                         testing::Values(Turret(), OptionalCube(), OptionalItem(), Settings()),
                         PageDrillName);

}  // namespace
}  // namespace mortane::test

// The words of items are those that the pages show for them.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/MakePages.h"
#include "app/SystemSettingsCtl.h"
#include "common/Numbers.h"
#include "common/Text.h"
#include "condensers/CondenserSettingsCtl.h"
#include "drives/ControlFocusDriveCtl.h"
#include "drives/ControlOtherCtl.h"
#include "drives/ControlXYStageCtl.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "gui/support/LatePages.h"
#include "gui/support/PageRig.h"
#include "interlocks/InterlockSettingsCtl.h"
#include "interlocks/ObservationAccessories.h"
#include "interlocks/OtherAccessories.h"
#include "interlocks/clsInterLockOffset.h"
#include "model/OptionCodes.h"
#include "objectives/ObjectiveSettingsCtl.h"
#include "record/ItemWords.h"
#include "record/ModelItems.h"
#include "record/SentItems.h"
#include "switches/SwitchFunctions.h"
#include "switches/SwitchSettingCtl.h"
#include "switches/TactorSwitchSettingCtl.h"
#include "widgets/ListBox.h"

namespace mortane::test {
namespace {

using namespace Qt::StringLiterals;
using enum ItemKind;

// What a page shows for an item. Parts of a name stand in different places of the page.
struct Shown {
  std::vector<std::string> names;
  std::string value;
};

// Without what a page says of defaults, and without blanks around.
std::string Bare(QString text) {
  const qsizetype bracket = text.indexOf(u'(');
  const bool tellsDefault =
      bracket >= 0 && (text.indexOf(u"default"_s) > bracket || text.indexOf(u": "_s) > bracket);
  if (tellsDefault) text.truncate(bracket);
  if (text.endsWith(u':')) text.chop(1);
  return text.trimmed().toStdString();
}

QString Of(const char* name, std::int32_t index) {
  return u"%1_%2"_s.arg(QLatin1String(name)).arg(index);
}

class Pages {
 public:
  explicit Pages(clsK70& k70, Prompts& prompts)
      : system_(MakeSystemSettings(k70, nullptr)),
        objectives_(MakeObjectiveSettings(k70, nullptr)),
        filters_(MakeFilterQubeSettings(k70, nullptr)),
        condensers_(MakeCondenserSettings(k70, nullptr)),
        interlocks_(MakeInterlockSettings(k70, nullptr)),
        focus_(MakeFocusDrive(k70)),
        stage_(MakeXYStage(k70)),
        other_(MakeOther(k70)),
        body_(MakeBodySwitches(k70)),
        tactor_(MakeTactorSwitches(k70, prompts)) {
    for (QWidget* page :
         {static_cast<QWidget*>(system_.get()), static_cast<QWidget*>(objectives_.get()),
          static_cast<QWidget*>(filters_.get()), static_cast<QWidget*>(condensers_.get()),
          static_cast<QWidget*>(interlocks_.get()), static_cast<QWidget*>(focus_.get()),
          static_cast<QWidget*>(stage_.get()), static_cast<QWidget*>(other_.get()),
          static_cast<QWidget*>(body_.get()), static_cast<QWidget*>(tactor_.get())}) {
      Load(*page);
    }
  }

  // Nothing for an item that no page shows as one value.
  std::optional<Shown> For(const ConfigurationItem& item) const {
    const std::int32_t place = ToLong(item.key.position, PointFormat()) - 1;
    const std::string number = item.key.position;
    switch (item.kind) {
      case SystemName:
        return Shown{{Text<QLabel>(*system_, "Label1")},
                     Find<QLineEdit>(*system_, u"TextSystemName"_s).text().toStdString()};
      case ObjectiveAddress:
        return Shown{{"Objective", number}, PlaceOf(*objectives_, place + 1)};
      case CubeAddress:
        return Shown{{"Filter Cube", number}, PlaceOf(*filters_, place + 1)};
      case CondenserAddress:
        return Cassette(place);
      case NosepieceLimit:
        return Limit(number);
      case ExciterName:
        return Named("Optional", "Exciter", *filters_, "TextExciter", place);
      case DichroicName:
        return Named("Optional", "Dichroic", *filters_, "TextDichroic", place);
      case BarrierName:
        return Named("Optional", "Barrier", *filters_, "TextBarrier", place);
      case CondenserName:
        return Named("Optional", "Condenser", *condensers_, "TextName", place);
      case ObservationInterlock:
        return Follower("Observation Change to", "lblAccessories", "CheckAccessories",
                        IndexOf(kObservationAccessories, number, &ObservationAccessory::pageIndex));
      case NosepieceInterlock:
        return Follower(Caption(*interlocks_, "FrameNosepiece"), "lblNosepiece", "CheckNosepiece",
                        IndexOf(kOtherAccessories, number, &OtherAccessory::nosepieceIndex));
      case LightPathInterlock:
        return Follower(Caption(*interlocks_, "FrameLightPath"), "lblLightPath", "CheckLightPath",
                        IndexOf(kOtherAccessories, number, &OtherAccessory::pathIndex));
      case ZoomInterlock:
        return Follower(Caption(*interlocks_, "FrameOpticalZoom"), "lblOpticalZoom",
                        "CheckOpticalZoom",
                        IndexOf(kOtherAccessories, number, &OtherAccessory::pathIndex));
      case Offset:
        return OffsetOf(number);
      case FocusCompensation:
        return Option(*focus_, {Heading(*focus_, "FrameZNose")}, "optFocusCompensation");
      case LowerLimit:
        return Option(*focus_, {Caption(*focus_, "FrameDownLimitation")}, "optDownLimitation");
      case FocusEscape:
        return Escape(0);
      case StageEscape:
        return Escape(1);
      case StageCompensation:
        return Option(*stage_, {Heading(*stage_, "Frame1")}, "optFocusCompensation");
      case FocusKnob:
        return Option(*other_, {Text<QLabel>(*other_, "lblFocusDrive")}, "optAuto");
      case StageKnob:
        return Option(*other_, {Text<QLabel>(*other_, "lblXYStage")}, "optXYAuto");
      case Buzzer:
        return Option(*other_, {Caption(*other_, "FrameBuzzer")}, "optBuzzer");
      case BodySwitches:
        return Option(*other_, {Caption(*other_, "FrameSwitch")}, "optSwitch");
      case HandSwitches:
        return Option(*other_, {Caption(*other_, "FrameTactorSwich")}, "optTactorSwitch");
      case RemoteSwitches:
        return Option(*other_, RemoteNames("lblRTlpoRemote"), "optR_TLPO_Switch");
      case RemoteLed:
        return Option(*other_, RemoteNames("lblR_TLPOLED"), "optR_TLPO_LED");
      case BodySwitch:
        return Switch(*body_, "K70 Switch", kBodyRows, place + 1);
      case HandMode:
        return Option(*tactor_, {"Tactor Switch", "Mode"}, "OptMode");
      case HandSide:
        return Option(*tactor_, {"Tactor Switch", "XY Knob"}, "optHandle");
      case HandSwitch:
        return HandSwitchOf(place + 1);
      default:
        return std::nullopt;
    }
  }

 private:
  static void Load(QWidget& page) {
    MakeAllPages(page);
    if (auto* self = dynamic_cast<Page*>(&page)) self->LoadData();
    for (Page* sub : page.findChildren<Page*>()) sub->LoadData();
  }

  template <typename Control>
  static Control& Find(QWidget& page, const QString& name) {
    auto* control = page.findChild<Control*>(name);
    if (control == nullptr) throw std::runtime_error(name.toStdString() + " is missing");
    return *control;
  }
  template <typename Control>
  static std::string Text(QWidget& page, const char* name) {
    return Bare(Find<Control>(page, QLatin1String(name)).text());
  }
  static std::string Caption(QWidget& page, const char* name) {
    return Bare(Find<InnerFrame>(page, QLatin1String(name)).caption());
  }

  // Of a frame that is no inner one, the first label in it.
  static std::string Heading(QWidget& page, const char* name) {
    return Bare(Find<QFrame>(page, QLatin1String(name)).findChild<QLabel*>()->text());
  }

  // "Address 3, 20x, Plan F 20x": what stands behind the number and the magnification.
  static std::string PlaceOf(QWidget& page, std::int32_t address) {
    const QString text =
        Find<QAbstractButton>(page, Of("place", address)).accessibleName().section(u", "_s, 1);
    return text.toStdString();
  }

  // The option that is chosen; nothing when the page shows none.
  static std::optional<Shown> Option(QWidget& page, std::vector<std::string> names,
                                     const char* array) {
    for (int i = 0;; ++i) {
      auto* option = page.findChild<QAbstractButton*>(Of(array, i));
      if (option == nullptr) return std::nullopt;
      if (!option->isChecked()) continue;
      const QString text = option->text().isEmpty() ? option->accessibleName() : option->text();
      return Shown{std::move(names), Bare(text)};
    }
  }

  // The page has seven rows.
  std::optional<Shown> Cassette(std::int32_t place) const {
    const auto* combo = condensers_->findChild<QComboBox*>(Of("Combo1", place));
    if (combo == nullptr) return std::nullopt;
    return Shown{{"Condenser", std::to_string(place + 1)}, combo->currentText().toStdString()};
  }

  std::optional<Shown> Limit(const std::string& rule) const {
    struct Rule {
      const char* position;
      const char* frame;
      const char* options;
    };
    constexpr Rule kRules[]{{"LowerMagnification", "frmIncrease", "optPreventIncrease"},
                            {"Skip", "frmSkip", "optSkipEmpty"},
                            {"WaferImmersion", "frmImmersion", "optPreventImmersion"}};
    for (const Rule& row : kRules) {
      if (rule != row.position) continue;
      // One rule has an explanation in place of a caption, which begins with its name.
      const QString explained =
          Find<InnerFrame>(*objectives_, QLatin1String(row.frame)).accessibleName();
      const std::string caption = Caption(*objectives_, row.frame);
      return Option(*objectives_,
                    {caption.empty() ? Bare(explained.section(u" ("_s, 0, 0)) : caption},
                    row.options);
    }
    return std::nullopt;
  }

  static Shown Named(const char* first, const char* second, QWidget& page, const char* array,
                     std::int32_t place) {
    return {{first, second, std::to_string(place + 1)},
            Find<QLineEdit>(page, Of(array, place)).text().toStdString()};
  }

  template <typename Rows, typename Row>
  static int IndexOf(const Rows& rows, const std::string& word, int Row::*index) {
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const Row& known) { return known.word == word; });
    return row == rows.end() ? -1 : (*row).*index;
  }

  std::optional<Shown> Follower(const std::string& frame, const char* label, const char* box,
                                int index) const {
    if (index < 0) return std::nullopt;
    return Shown{{frame, Bare(Find<QLabel>(*interlocks_, Of(label, index)).text())},
                 Find<QAbstractButton>(*interlocks_, Of(box, index)).text().toStdString()};
  }

  std::optional<Shown> OffsetOf(const std::string& word) const {
    struct Row {
      const char* word;
      const char* label;
      const char* list;
    };
    constexpr Row kRows[]{{"ND", "lblNDFilter", "ComboNDFilter"},
                          {"DiaFStop", "lblFieldStop", "ComboFieldStop"},
                          {"DiaAStop", "lblApertureStop", "ComboApertureStop"},
                          {"EpiFStop", "lblEpiFieldStop", "ComboEpiFieldStop"}};
    for (const Row& row : kRows) {
      if (word != row.word) continue;
      auto& list = Find<QComboBox>(*interlocks_, QLatin1String(row.list));
      // A code without a factor is not shown.
      if (list.currentIndex() < 0) return std::nullopt;
      return Shown{{"Compensation", Text<QLabel>(*interlocks_, row.label)},
                   list.currentText().toStdString()};
    }
    return std::nullopt;
  }

  // A body of older firmware has no escape, and a microscope without a stage none of it.
  std::optional<Shown> Escape(int axis) const {
    if (!Find<QLabel>(*focus_, Of("lblEscape", axis)).isEnabled()) return std::nullopt;
    return Shown{{Caption(*focus_, "frmEscapeSetting"),
                  Bare(Find<QLabel>(*focus_, Of("lblEscape", axis)).text())},
                 Find<QAbstractButton>(*focus_, Of("chkEscape", axis)).text().toStdString()};
  }

  std::vector<std::string> RemoteNames(const char* label) const {
    std::string frame = Caption(*other_, "FrameR_TLPORemote");
    frame.resize(frame.find(" Settings"));
    return {frame, Text<QLabel>(*other_, label)};
  }

  // Of a dial only the first direction has a text of its own, which names both.
  template <typename Rows>
  static std::optional<Shown> Switch(QWidget& page, const char* title, const Rows& rows,
                                     std::int32_t position) {
    auto& list = Find<ListBox>(page, u"ListView1"_s);
    for (int row = 0; row < list.rowCount(); ++row) {
      const QStringList cells = list.cells(row);
      for (const auto& known : rows) {
        if (known.position != position || cells.value(0).toStdString() != known.name) continue;
        return Shown{{title, cells.value(0).toStdString()}, cells.value(1).toStdString()};
      }
    }
    return std::nullopt;
  }

  std::optional<Shown> HandSwitchOf(std::int32_t position) const {
    for (int pageNumber = 1; pageNumber <= 2; ++pageNumber) {
      Find<QAbstractButton>(*tactor_, Of("optChg", pageNumber)).setChecked(true);
      tactor_->LoadData();
      const auto& rows = kTactorPages[static_cast<std::size_t>(pageNumber - 1)];
      if (auto shown = Switch(*tactor_, "Tactor Switch", rows, position)) return shown;
    }
    return std::nullopt;
  }

  std::unique_ptr<SystemSettingsCtl> system_;
  std::unique_ptr<ObjectiveSettingsCtl> objectives_;
  std::unique_ptr<FilterQubeSettingsCtl> filters_;
  std::unique_ptr<CondenserSettingsCtl> condensers_;
  std::unique_ptr<InterlockSettingsCtl> interlocks_;
  std::unique_ptr<ControlFocusDriveCtl> focus_;
  std::unique_ptr<ControlXYStageCtl> stage_;
  std::unique_ptr<ControlOtherCtl> other_;
  std::unique_ptr<SwitchSettingCtl> body_;
  std::unique_ptr<TactorSwitchSettingCtl> tactor_;
};

bool IsDial(const ConfigurationItem& item) {
  const std::string name = NameInWords(item.key, item.kind);
  return (item.kind == BodySwitch || item.kind == HandSwitch) && name.ends_with(" CW");
}

bool IsCodeWithoutName(const std::string& words) {
  return words.starts_with("code ");
}

// A page cuts names that are longer than its fields.
bool IsCut(const std::string& words, const std::string& shown) {
  return CharacterCount(shown) >= kOptionNameLength && words.starts_with(shown);
}

// A turret shows the magnification before the name, and a free place as dashes.
bool SaysTheSameOnATurret(const std::string& words, const std::string& shown) {
  if (shown == "----") return IsVacant(words) || IsCodeWithoutName(words) || words == shown;
  const std::size_t comma = shown.find(", ");
  const bool hasName = comma != std::string::npos;
  const std::string name = RightTrim(hasName ? shown.substr(comma + 2) : shown);
  return name == words || IsCut(words, name) || (!hasName && IsCodeWithoutName(words));
}

bool SaysTheSame(const ConfigurationItem& item, const std::string& words,
                 const std::string& shown) {
  if (item.kind == ObjectiveAddress || item.kind == CubeAddress) {
    return SaysTheSameOnATurret(words, shown);
  }
  if (IsDial(item)) {
    const std::int32_t code = ToLong(item.value, PointFormat());
    // What is no pair of a dial leaves the text of the row before.
    return FunctionName(DialFunctions(), code).empty() || shown.starts_with(words);
  }
  return shown == words || RightTrim(shown) == words || IsCut(words, shown);
}

class WordsOfPages : public ::testing::TestWithParam<std::string> {};

TEST_P(WordsOfPages, AreThoseOfItems) {
  PageRig rig(GetParam(), Link::Reported);
  rig.prompts.AcceptAnyBox();
  clsK70& k70 = rig.k70();
  const Pages pages(k70, rig.prompts);
  const ItemNames names(k70);
  SentItems sent(k70);
  int compared = 0;
  for (const ConfigurationItem& item : ItemsOf(k70)) {
    const bool isHeld = IsKnown(item) && item.exact.empty() && sent.IsFitted(item) == true;
    if (!isHeld) continue;
    const std::optional<Shown> shown = pages.For(item);
    if (!shown || shown->value.empty()) continue;
    ++compared;
    const std::string name = NameInWords(item.key, item.kind);
    const std::string words = ValueInWords(item, names);
    for (const std::string& part : shown->names) {
      EXPECT_NE(name.find(part), std::string::npos) << name << " is " << part << " on the page";
    }
    EXPECT_TRUE(SaysTheSame(item, words, shown->value))
        << name << ": " << words << ", and " << shown->value << " on the page";
  }
  EXPECT_GT(compared, 0) << "the pages show nothing";
  rig.prompts.ClearRecords();
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(PageDrill);

INSTANTIATE_TEST_SUITE_P(Benches, WordsOfPages, ::testing::ValuesIn(benches::Names()),
                         [](const auto& bench) { return bench.param; });

}  // namespace
}  // namespace mortane::test

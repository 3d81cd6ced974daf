// The panel that defines the nine objectives of the user, one per tab.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "objectives/AdoptiveCondensers.h"
#include "widgets/CardPage.h"
#include "widgets/Control.h"
#include "widgets/LatePage.h"

class QFrame;
class QLabel;

namespace mortane {

class ComboBox;
class ListBox;
class RecordForm;
class TabStrip;
class TextField;
class ValueLabel;
class clsDbNosepiece;

// Every accepted entry stores the whole objective on show. So does a new row that loading
// selects, with the texts as cut to the boxes.
class ObjectiveOptionCtl : public CardPage {
  Q_OBJECT

 public:
  explicit ObjectiveOptionCtl(clsDbNosepiece& objectives, QWidget* parent = nullptr);

  // What happens in place of the page before it is made.
  static LatePlan Plan(clsDbNosepiece& objectives);

  void LoadData() override;
  // Stores once more. Kept: a number that may not be, the dashes too, is stored as 0 without a
  // word, and the box keeps what it shows.
  void SaveData() override;
  void ShowStored() override;

  Control<TabStrip> TabStrip1{"TabStrip1"};
  Control<QFrame> NosepieceOptionItemFrm{"NosepieceOptionItemFrm"};
  Control<QLabel> Label1{"Label1"};
  Control<TextField> TextName{"TextName"};
  Control<QLabel> Label2{"Label2"};
  Control<ValueLabel> LabelSeries{"LabelSeries"};
  Control<ListBox> ListSeries{"ListSeries"};
  Control<QLabel> Label3{"Label3"};
  Control<ValueLabel> LabelType{"LabelType"};
  Control<ListBox> ListType{"ListType"};
  Control<QLabel> Label4{"Label4"};
  Control<TextField> TextMag{"TextMag"};
  Control<QLabel> Label7{"Label7"};
  Control<ListBox> ListMag{"ListMag"};
  Control<QLabel> Label5{"Label5"};
  Control<TextField> TextWD{"TextWD"};
  Control<QLabel> Label6{"Label6"};
  Control<TextField> TextNA{"TextNA"};
  Control<QFrame> FrmCondenser{"FrmCondenser"};
  Control<QLabel> Label8{"Label8"};
  Control<ComboBox> ComboCondenser{"ComboCondenser"};

 private:
  // A box for a number from 0 to `highest`.
  struct Number {
    const char* caption;
    double highest;
    bool mayBeDashes;
    bool zeroForBlank;  // at once, so that the box is never empty
    Control<QLabel> ObjectiveOptionCtl::*label;
    Control<TextField> ObjectiveOptionCtl::*field;
  };
  static const std::array<Number, 3> kNumbers;  // magnification, distance, aperture
  static constexpr int kNumberLength = 5;
  // What the controller says of the condensers to choose from; none where no condenser is there.
  using CondenserChoice = std::optional<AdoptiveCondensers>;

  void Build();
  void BuildMagnification(RecordForm& form);
  QFrame* BuildValues(QWidget* parent);
  static TextField* MakeField(const Number& number, QWidget* parent);
  void Connect();
  void ConnectNumber(const Number& number);

  // Whether the first objective stays the same when it is shown, or saved.
  static bool StaysAsShown(const clsDbNosepiece& objectives);
  static bool StaysAsSaved(const clsDbNosepiece& objectives);

  static CondenserChoice ReadCondensers(const clsDbNosepiece& objectives);
  void Fill(const CondenserChoice& condensers);
  void ShowObjective();
  void ShowCondensers(bool mounted);
  void ReadObjective();
  void FillLists();
  void RebuildCondensers(const AdoptiveCondensers& condensers);
  void SelectCondenser();
  static bool IsGood(const Number& number, const QString& text);
  void Store();
  void StoreNumbers(const std::array<std::string, 3>& numbers);

  clsDbNosepiece& objectives_;
  std::int32_t series_ = 0;
  std::int32_t type_ = 0;
  std::int32_t condenser_ = 0;
  std::int32_t condenserCount_ = 0;  // of the controller's list at the last rebuilding
};

}  // namespace mortane

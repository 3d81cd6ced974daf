// The panel that defines the nine objectives of the user, one per tab.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "widgets/CardPage.h"

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

  void LoadData() override;
  // Stores once more; a number that may not be is stored as 0, and the box keeps it.
  void SaveData() override;

  TabStrip* TabStrip1;
  QFrame* NosepieceOptionItemFrm;
  QLabel* Label1;
  TextField* TextName;
  QLabel* Label2;
  ValueLabel* LabelSeries;
  ListBox* ListSeries;
  QLabel* Label3;
  ValueLabel* LabelType;
  ListBox* ListType;
  QLabel* Label4;
  TextField* TextMag;
  QLabel* Label7;
  ListBox* ListMag;
  QLabel* Label5;
  TextField* TextWD;
  QLabel* Label6;
  TextField* TextNA;
  QFrame* FrmCondenser;
  QLabel* Label8;
  ComboBox* ComboCondenser;

 private:
  // A box for a number from 0 to `highest`.
  struct Number {
    const char* labelName;
    const char* caption;
    const char* fieldName;
    double highest;
    bool mayBeDashes;
    bool zeroForBlank;  // at once, so that the box is never empty
    QLabel* ObjectiveOptionCtl::*label;
    TextField* ObjectiveOptionCtl::*field;
  };
  static const std::array<Number, 3> kNumbers;  // magnification, distance, aperture
  enum class Condensers { AsListed, Anew };

  void Build();
  void BuildMagnification(RecordForm& form);
  QFrame* BuildValues(QWidget* parent);
  static TextField* MakeField(const Number& number, QWidget* parent);
  void Connect();
  void ConnectNumber(const Number& number);

  void ShowObjective(Condensers condensers);
  void FillLists();
  void RebuildCondensers();
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

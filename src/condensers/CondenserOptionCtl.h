// The sub-page that names the user's nine condensers.
#pragma once

#include <array>
#include <cstdint>

#include "widgets/Page.h"

class QLabel;

namespace mortane {

class Card;
class TextField;

// A nameless one shows dashes. They are only a mark, but saving the page takes them for the name.
class CondenserOptionCtl : public Page {
 public:
  static constexpr int kRowCount = 9;
  static constexpr char kUnnamed[] = "----------";
  static constexpr std::int32_t CodeOf(int row) { return 141 + row; }

  explicit CondenserOptionCtl(QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override;

  Card* FrameBase;
  std::array<QLabel*, kRowCount> Label11;
  std::array<TextField*, kRowCount> TextName;

 private:
  QWidget* BuildRow(int row);
  void Store(int row);
};

}  // namespace mortane

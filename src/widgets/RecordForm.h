// The body of a page for the user's records: numbered tabs, and a frame for the record of one tab.
#pragma once

class QFrame;
class QLabel;
class QVBoxLayout;
class QWidget;

namespace mortane {

class Card;
class ColumnFlow;
class ListBox;
class TabStrip;
class TextField;

// Fills a card from the top: the tabs, a row with the name, and columns side by side. What it
// makes belongs to the card; the Tab key goes by the order of the calls. Where the width is short
// the columns go on in a second row.
class RecordForm {
 public:
  RecordForm(Card& card, int records);

  [[nodiscard]] TabStrip* tabs() const { return tabs_; }
  [[nodiscard]] QFrame* frame() const { return frame_; }

  struct Name {
    QLabel* label;
    TextField* field;
  };
  // The label says "Name". The field takes `limit` characters and is wide enough for `shown`, or
  // for the limit where the width is short.
  Name AddName(int limit, int shown);

  struct Column {
    QLabel* caption;
    ListBox* list;
  };
  // Caption, value and list below each other. The value is a child of frame() and stands halfway
  // between the two. The column takes `stretch` shares of the width; its list shows that many
  // figures at least.
  Column AddColumn(const char* caption, QWidget* value, int stretch, int characters);
  // A panel beside value and list.
  void AddPanel(QWidget* panel, int stretch);

 private:
  QVBoxLayout* StartColumn(int stretch);

  TabStrip* tabs_;
  QFrame* frame_;
  ColumnFlow* columns_;
};

}  // namespace mortane

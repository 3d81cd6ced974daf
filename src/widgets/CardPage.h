// A page that is one card.
#pragma once

#include "widgets/Control.h"
#include "widgets/Page.h"

namespace mortane {

class Card;

class CardPage : public Page {
  Q_OBJECT

 public:
  explicit CardPage(const QString& caption, QWidget* parent = nullptr);

  // The card, its caption as the first line; the page's controls go into its body.
  Control<Card> FrameBase{"FrameBase"};
};

}  // namespace mortane

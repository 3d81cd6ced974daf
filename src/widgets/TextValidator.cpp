#include "widgets/TextValidator.h"

namespace mortane {
namespace {

// Code units of the character that ends before that position.
int UnitsBefore(const QString& text, int position) {
  const bool pair = position >= 2 && text.at(position - 1).isLowSurrogate() &&
                    text.at(position - 2).isHighSurrogate();
  return pair ? 2 : 1;
}

}  // namespace

int CharacterCount(const QString& text) {
  int count = 0;
  for (int at = static_cast<int>(text.size()); at > 0; at -= UnitsBefore(text, at)) ++count;
  return count;
}

QString FirstCharacters(const QString& text, int count) {
  QString kept = text;
  for (int excess = CharacterCount(text) - count; excess > 0; --excess)
    kept.chop(UnitsBefore(kept, static_cast<int>(kept.size())));
  return kept;
}

TextValidator::TextValidator(int limit, QObject* parent) : QValidator(parent), limit_(limit) {}

QValidator::State TextValidator::validate(QString& input, int& position) const {
  // What was just put in ends at the cursor.
  int excess = CharacterCount(input) - limit_;
  for (; excess > 0 && position > 0; --excess) {
    const int units = UnitsBefore(input, position);
    input.remove(position - units, units);
    position -= units;
  }
  if (excess > 0) input = FirstCharacters(input, limit_);
  return Acceptable;
}

}  // namespace mortane

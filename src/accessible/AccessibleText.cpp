#include "accessible/AccessibleText.h"

namespace mortane {

QString ReadOnlyText::text(int start, int end) const {
  return content().mid(start, end - start);
}

int ReadOnlyText::characterCount() const {
  return static_cast<int>(content().size());
}

// One run of the same looks from the first to the last character.
QString ReadOnlyText::attributes(int, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}

void ReadOnlyText::selection(int, int* start, int* end) const {
  *start = 0;
  *end = 0;
}

}  // namespace mortane

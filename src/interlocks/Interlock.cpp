#include "interlocks/Interlock.h"

#include <algorithm>

#include "model/ElementFields.h"

namespace mortane {
namespace {

struct StateWord {
  std::string_view word;
  std::int32_t state;
};

constexpr std::string_view kUnknownWord = "Unknown";
constexpr std::array<StateWord, 3> kStateWords{
    {{"True", kInterlockOn}, {"False", kInterlockOff}, {kUnknownWord, kInterlockUnknown}}};

std::string_view WordOf(std::int32_t state) {
  const auto* const row =
      std::find_if(kStateWords.begin(), kStateWords.end(),
                   [state](const StateWord& known) { return known.state == state; });
  return row == kStateWords.end() ? kUnknownWord : row->word;
}

}  // namespace

std::int32_t ReadInterlock(const ConnectedMicroscope& microscope, std::int32_t item,
                           std::int32_t cause) {
  return microscope.Mic.ControllerSettings().Interlock(item, cause);
}

void WriteInterlock(const ConnectedMicroscope& microscope, std::int32_t item, std::int32_t cause,
                    std::int32_t state) {
  const controller::ControllerSettings settings = microscope.Mic.ControllerSettings();
  if (state == kInterlockOn) {
    settings.SetInterlock(item, cause);
  } else {
    settings.ClearInterlock(item, cause);
  }
}

InterlockElement ReadInterlockElement(const DomNode& node) {
  const ElementFields fields(node);
  const std::string code = fields.Text("CODE");
  InterlockElement element{fields.Text("POSITION"), std::nullopt};
  for (const StateWord& known : kStateWords) {
    if (EqualsIgnoringCase(known.word, code)) element.state = known.state;
  }
  return element;
}

void AppendInterlockElement(DomDocument& document, DomNode section, std::string_view element,
                            std::string_view position, std::int32_t state) {
  DomNode node = document.CreateElement(element);
  node.SetAttribute("POSITION", position);
  node.SetAttribute("CODE", WordOf(state));
  section.Append(node);
}

}  // namespace mortane

#include "interlocks/Interlock.h"

#include "model/ElementFields.h"
#include "model/FileWords.h"

namespace mortane {
namespace {

constexpr std::array<FileWord, 2> kStateWords{{{"True", kInterlockOn}, {"False", kInterlockOff}}};

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
  return {fields.Text("POSITION"), ValueOf(kStateWords, fields.Text("CODE"), kUnknown)};
}

void AppendInterlockElement(DomDocument& document, DomNode section, std::string_view element,
                            std::string_view position, std::int32_t state) {
  DomNode node = document.CreateElement(element);
  node.SetAttribute("POSITION", position);
  node.SetAttribute("CODE", WordOf(kStateWords, state));
  section.Append(node);
}

}  // namespace mortane

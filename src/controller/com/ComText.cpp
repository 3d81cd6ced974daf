#include "controller/com/ComText.h"

#include <oleauto.h>

#include "platform/windows/Wide.h"

namespace mortane::controller {

std::string TextOf(BSTR text) {
  if (text == nullptr) return {};
  return ToUtf8({text, SysStringLen(text)});
}

std::string TakeText(BSTR text) {
  std::string utf8 = TextOf(text);
  SysFreeString(text);
  return utf8;
}

}  // namespace mortane::controller

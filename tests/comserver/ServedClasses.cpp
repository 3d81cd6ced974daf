#include "comserver/ServedClasses.h"

namespace mortane::comserver {

CLSID ClassFamily::ClassId(std::size_t place) const {
  CLSID id = base;
  id.Data4[7] = static_cast<unsigned char>(place + 1);
  return id;
}

ClassFamily FamilyOfEnvironment() {
  std::array<wchar_t, 64> text{};
  ClassFamily family = kInProcessFamily;
  const DWORD size =
      GetEnvironmentVariableW(kFamilyVariable, text.data(), static_cast<DWORD>(text.size()));
  if (size == 0 || FAILED(CLSIDFromString(text.data(), &family.base))) return kInProcessFamily;
  return family;
}

std::wstring ProgId(std::wstring_view prefix, std::size_t place) {
  const std::string_view name = kClassNames.at(place);
  return std::wstring(prefix) + std::wstring(name.begin(), name.end());
}

std::wstring GuidText(const GUID& guid) {
  std::array<wchar_t, 39> text{};
  StringFromGUID2(guid, text.data(), static_cast<int>(text.size()));
  return text.data();
}

std::wstring ReadyEventName(const ClassFamily& family) {
  return L"MortaneTestServer-" + GuidText(family.base);
}

}  // namespace mortane::comserver

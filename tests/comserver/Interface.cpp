#include "comserver/Interface.h"

#include <oleauto.h>

#include <algorithm>
#include <cstdint>
#include <cwctype>
#include <map>
#include <memory>

namespace mortane::comserver {
namespace {

using controller::ComPointer;
using controller::MemberEntry;
using controller::MemberUse;

constexpr DISPID kIdsOfAnInterface = 0x100;

// The same for the same members in every process.
GUID GuidOf(const std::vector<MemberEntry>& entries) {
  constexpr std::uint64_t kOffset = 0xCBF29CE484222325U;  // FNV-1a
  constexpr std::uint64_t kPrime = 0x100000001B3U;
  std::uint64_t hash = kOffset;
  const auto add = [&](unsigned char byte) { hash = (hash ^ byte) * kPrime; };
  for (const MemberEntry& entry : entries) {
    for (const char c : entry.name) add(static_cast<unsigned char>(c));
    add(static_cast<unsigned char>('0' + static_cast<int>(entry.use)));
  }
  GUID guid{0x6B0F4E54, 0x52A4, 0x4C0B, {}};
  for (unsigned char& byte : guid.Data4) {
    byte = static_cast<unsigned char>(hash);
    hash >>= 8U;
  }
  return guid;
}

// Type information that has a name and no members: nobody binds early.
ComPointer<ITypeInfo> MakeTypeInfo(const GUID& guid) {
  ComPointer<ICreateTypeLib2> library;
  ComPointer<ICreateTypeInfo> made;
  std::wstring name = L"Served";
  if (FAILED(CreateTypeLib2(SYS_WIN64, L"served.tlb", library.Out())) ||
      FAILED(library->CreateTypeInfo(name.data(), TKIND_DISPATCH, made.Out())) ||
      FAILED(made->SetGuid(guid)) || FAILED(made->LayOut())) {
    return {};
  }
  return made.As<ITypeInfo>();
}

DISPID IdOf(std::string_view name, DISPID next) {
  if (name.empty()) return DISPID_VALUE;
  return name == "_NewEnum" ? DISPID_NEWENUM : next;
}

bool SameName(std::wstring_view asked, std::string_view known) {
  return std::equal(asked.begin(), asked.end(), known.begin(), known.end(), [](wchar_t a, char b) {
    return std::towlower(static_cast<wint_t>(a)) == std::towlower(static_cast<wint_t>(b));
  });
}

}  // namespace

Interface::Interface(const std::vector<MemberEntry>& entries, DISPID firstId)
    : typeInfo_(MakeTypeInfo(GuidOf(entries))) {
  for (const MemberEntry& entry : entries) {
    auto member = std::find_if(members_.begin(), members_.end(),
                               [&](const ServedMember& known) { return known.name == entry.name; });
    if (member == members_.end()) {
      const auto next = static_cast<DISPID>(members_.size());
      member = members_.insert(member, {entry.name, IdOf(entry.name, firstId + next), {}, {}, {}});
    }
    auto& use = entry.use == MemberUse::Get   ? member->get
                : entry.use == MemberUse::Put ? member->put
                                              : member->call;
    use = entry.arguments;
  }
}

const ServedMember* Interface::Find(std::wstring_view name) const {
  const auto member =
      std::find_if(members_.begin(), members_.end(),
                   [&](const ServedMember& known) { return SameName(name, known.name); });
  return member == members_.end() ? nullptr : &*member;
}

const ServedMember* Interface::Find(DISPID id) const {
  const auto member = std::find_if(members_.begin(), members_.end(),
                                   [&](const ServedMember& known) { return known.id == id; });
  return member == members_.end() ? nullptr : &*member;
}

const Interface& InterfaceOf(const std::vector<MemberEntry>& entries) {
  static std::map<const void*, const Interface*> byList;
  static std::map<std::string, std::unique_ptr<Interface>> byMembers;
  const Interface*& known = byList[&entries];
  if (known == nullptr) {
    const GUID guid = GuidOf(entries);
    auto& made = byMembers[std::string(reinterpret_cast<const char*>(&guid), sizeof guid)];
    if (made == nullptr) {
      const auto place = static_cast<DISPID>(byMembers.size());
      made = std::make_unique<Interface>(entries, place * kIdsOfAnInterface);
    }
    known = made.get();
  }
  return *known;
}

}  // namespace mortane::comserver

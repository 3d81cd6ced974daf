// The test server refuses and converts as automation servers do, so that tests through it mean
// something.
#include <objbase.h>
#include <oleauto.h>

#include "comserver/ServerHost.h"
#include "controller/com/ComPointer.h"
#include "controller/com/Variant.h"
#include "controller/contract/BackEnd.h"
#include "platform/windows/Wide.h"

namespace mortane::controller::test {
namespace {

using comserver::InProcessServer;

constexpr LCID kEnglish = 0x0409;
constexpr LCID kGerman = 0x0407;

// A bare object of the server, asked without the program's own layer.
class Bare {
 public:
  explicit Bare(ComPointer<IDispatch> object) : object_(std::move(object)) {}

  DISPID Id(const wchar_t* name) const {
    std::wstring text = name;
    LPOLESTR names = text.data();
    DISPID id = 0;
    idResult = object_->GetIDsOfNames(IID_NULL, &names, 1, kEnglish, &id);
    return id;
  }

  // `variants` in COM's order; one of them named as the written value when `flags` writes.
  HRESULT Invoke(DISPID id, WORD flags, std::vector<VARIANT> variants = {},
                 LCID locale = kEnglish) const {
    DISPID put = DISPID_PROPERTYPUT;
    const bool writes = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    DISPPARAMS parameters{variants.data(), writes ? &put : nullptr,
                          static_cast<UINT>(variants.size()), writes ? 1U : 0U};
    VariantClear(result.get());
    told = {};
    wrongArgument = 99;
    return object_->Invoke(id, IID_NULL, locale, flags, &parameters, result.get(), &told,
                           &wrongArgument);
  }
  HRESULT Invoke(const wchar_t* name, WORD flags, std::vector<VARIANT> variants = {},
                 LCID locale = kEnglish) const {
    return Invoke(Id(name), flags, std::move(variants), locale);
  }

  Bare Object(const wchar_t* name, std::vector<VARIANT> variants = {}) const {
    EXPECT_EQ(Invoke(name, DISPATCH_PROPERTYGET, std::move(variants)), S_OK);
    EXPECT_EQ(result.get()->vt, VT_DISPATCH);
    result.get()->pdispVal->AddRef();
    return Bare(ComPointer<IDispatch>(result.get()->pdispVal));
  }

  GUID InterfaceId() const {
    ComPointer<ITypeInfo> type;
    TYPEATTR* attributes = nullptr;
    if (FAILED(object_->GetTypeInfo(0, kEnglish, type.Out())) ||
        FAILED(type->GetTypeAttr(&attributes))) {
      return GUID_NULL;
    }
    const GUID id = attributes->guid;
    type->ReleaseTypeAttr(attributes);
    return id;
  }

  IDispatch* get() const { return object_.get(); }

  mutable Variant result;
  mutable EXCEPINFO told{};
  mutable UINT wrongArgument = 0;
  mutable HRESULT idResult = S_OK;

 private:
  ComPointer<IDispatch> object_;
};

VARIANT Long(LONG value) {
  VARIANT variant{};
  variant.vt = VT_I4;
  variant.lVal = value;
  return variant;
}

VARIANT Double(double value) {
  VARIANT variant{};
  variant.vt = VT_R8;
  variant.dblVal = value;
  return variant;
}

VARIANT Truth(VARIANT_BOOL value) {
  VARIANT variant{};
  variant.vt = VT_BOOL;
  variant.boolVal = value;
  return variant;
}

VARIANT Object(IDispatch* value) {
  VARIANT variant{};
  variant.vt = VT_DISPATCH;
  variant.pdispVal = value;
  return variant;
}

// A text that lives as long as the test program.
VARIANT Text(const wchar_t* value) {
  VARIANT variant{};
  variant.vt = VT_BSTR;
  variant.bstrVal = SysAllocString(value);
  return variant;
}

// The simulator's root, connected.
struct TestServer : testing::Test {
  TestServer() {
    const Bare entry = root.Object(L"DeviceList").Object(L"Item", {Long(0)});
    EXPECT_EQ(root.Invoke(L"CurrentDevice", DISPATCH_PROPERTYPUTREF, {Object(entry.get())}), S_OK);
    EXPECT_EQ(entry.Invoke(L"Connect", DISPATCH_METHOD), S_OK);
  }

  static ComPointer<IDispatch> NewRoot() {
    ComPointer<IDispatch> made;
    void* object = nullptr;
    CoCreateInstance(comserver::kInProcessFamily.ClassId(0), nullptr, CLSCTX_INPROC_SERVER,
                     IID_IDispatch, &object);
    return ComPointer<IDispatch>(static_cast<IDispatch*>(object));
  }

  std::string ToldText() const {
    return ToUtf8({root.told.bstrDescription, SysStringLen(root.told.bstrDescription)});
  }

  InProcessServer server;
  Bare root{NewRoot()};
};

TEST_F(TestServer, KnowsItsNamesInAnyCaseAndNoOthers) {
  const DISPID id = root.Id(L"ControllerPresent");
  EXPECT_EQ(root.idResult, S_OK);
  EXPECT_EQ(root.Id(L"cONTROLLERpRESENT"), id);
  EXPECT_EQ(root.Id(L"ControllerPresen"), DISPID_UNKNOWN);
  EXPECT_EQ(root.idResult, DISP_E_UNKNOWNNAME);
}

TEST_F(TestServer, TellsTheUsesOfAMemberApart) {
  struct Row {
    const wchar_t* member;
    WORD flags;
    std::vector<VARIANT> variants;
    HRESULT result;
  };
  for (const Row& row : {
           Row{L"ControllerPresent", DISPATCH_PROPERTYGET, {Long(1)}, S_OK},
           Row{L"ControllerPresent", DISPATCH_METHOD, {Long(1)}, DISP_E_MEMBERNOTFOUND},
           Row{L"ControllerPresent", DISPATCH_PROPERTYPUT, {Long(1)}, DISP_E_MEMBERNOTFOUND},
           Row{L"BuzzerOn", DISPATCH_METHOD, {Long(1)}, S_OK},
           Row{L"BuzzerOn", DISPATCH_METHOD | DISPATCH_PROPERTYGET, {Long(1)}, S_OK},
           Row{L"BuzzerOn", DISPATCH_PROPERTYGET, {Long(1)}, DISP_E_MEMBERNOTFOUND},
           Row{L"SystemName", DISPATCH_PROPERTYPUT, {Text(L"x")}, S_OK},
           Row{L"SystemName", DISPATCH_PROPERTYPUTREF, {Text(L"x")}, DISP_E_MEMBERNOTFOUND},
           Row{L"SystemName", DISPATCH_PROPERTYGET, {}, DISP_E_MEMBERNOTFOUND},
           Row{L"CurrentDevice", DISPATCH_PROPERTYPUT, {Object(nullptr)}, DISP_E_MEMBERNOTFOUND},
           Row{L"CurrentDevice", DISPATCH_PROPERTYPUTREF, {Object(nullptr)}, DISP_E_TYPEMISMATCH},
           Row{L"CurrentDevice", DISPATCH_PROPERTYPUTREF, {Long(0)}, DISP_E_TYPEMISMATCH},
           Row{L"ControllerPresent", DISPATCH_PROPERTYGET, {}, DISP_E_BADPARAMCOUNT},
           Row{L"RemoteLED", DISPATCH_PROPERTYPUT, {Long(1)}, DISP_E_BADPARAMCOUNT},
           Row{L"RemoteLED", DISPATCH_PROPERTYPUT, {Long(1), Long(7)}, S_OK},
       }) {
    EXPECT_EQ(root.Invoke(row.member, row.flags, row.variants), row.result)
        << ToUtf8(row.member) << " " << row.flags;
  }
}

TEST_F(TestServer, TakesNoNamedArgumentAndNoUnnamedWrite) {
  DISPID name = 0;
  VARIANT one = Long(1);
  DISPPARAMS named{&one, &name, 1, 1};
  DISPPARAMS unnamed{&one, nullptr, 1, 0};
  const DISPID present = root.Id(L"ControllerPresent");
  const DISPID systemName = root.Id(L"SystemName");
  EXPECT_EQ(root.get()->Invoke(present, IID_NULL, kEnglish, DISPATCH_PROPERTYGET, &named, nullptr,
                               nullptr, nullptr),
            DISP_E_NONAMEDARGS);
  EXPECT_EQ(root.get()->Invoke(systemName, IID_NULL, kEnglish, DISPATCH_PROPERTYPUT, &unnamed,
                               nullptr, nullptr, nullptr),
            DISP_E_PARAMNOTOPTIONAL);
}

TEST_F(TestServer, ConvertsArgumentsByTheRulesOfAutomation) {
  static VARIANT inner = Text(L"1");
  VARIANT reference{};
  reference.vt = VT_VARIANT | VT_BYREF;
  reference.pvarVal = &inner;
  VARIANT empty{};
  struct Row {
    VARIANT argument;
    std::string unit;  // whose presence is asked, as the failure of an unknown one names it
  };
  for (const Row& row :
       {Row{Text(L"9"), "9"}, Row{Text(L" 9 "), "9"}, Row{Double(8.5), "8"}, Row{Double(9.5), "10"},
        Row{Double(-0.5), "0"}, Row{Double(8.6), "9"}, Row{Truth(VARIANT_TRUE), "-1"},
        Row{Truth(VARIANT_FALSE), "0"}, Row{empty, "0"}}) {
    EXPECT_EQ(root.Invoke(L"ControllerPresent", DISPATCH_PROPERTYGET, {row.argument}),
              DISP_E_EXCEPTION);
    EXPECT_EQ(ToldText(), "No controller unit " + row.unit + ".");
  }
  EXPECT_EQ(root.Invoke(L"ControllerPresent", DISPATCH_PROPERTYGET, {reference}), S_OK);
  EXPECT_EQ(root.Invoke(L"ControllerPresent", DISPATCH_PROPERTYGET, {Text(L"one")}),
            DISP_E_TYPEMISMATCH);
  EXPECT_EQ(root.wrongArgument, 0U);
  EXPECT_EQ(root.Invoke(L"ControllerPresent", DISPATCH_PROPERTYGET, {Double(1e10)}),
            DISP_E_OVERFLOW);
  EXPECT_EQ(root.Invoke(L"SwitchEnabled", DISPATCH_PROPERTYGET, {Long(0), Text(L"one")}),
            DISP_E_TYPEMISMATCH);
  EXPECT_EQ(root.wrongArgument, 1U);
}

TEST_F(TestServer, ReadsNumbersInTextsByTheCallersLocale) {
  const Bare record =
      root.Object(L"AccessoryDatabase").Object(L"Nosepieces").Object(L"Item", {Long(35)});
  const auto magnificationOf = [&](const wchar_t* text, LCID locale) {
    EXPECT_EQ(record.Invoke(L"SetProperties", DISPATCH_METHOD,
                            {Long(0), Long(0), Text(text), Long(1), Long(1)}, locale),
              S_OK);
    EXPECT_EQ(record.Invoke(L"Magnification", DISPATCH_PROPERTYGET), S_OK);
    return record.result.get()->dblVal;
  };
  EXPECT_EQ(magnificationOf(L"2.5", kEnglish), 2.5);
  EXPECT_EQ(magnificationOf(L"2,5", kGerman), 2.5);
  EXPECT_EQ(magnificationOf(L"2,5", kEnglish), 25);
}

TEST_F(TestServer, TellsTheFailureOfTheLibrary) {
  EXPECT_EQ(root.Invoke(L"BuzzerOn", DISPATCH_METHOD, {Long(3)}), DISP_E_EXCEPTION);
  EXPECT_EQ(root.told.scode, E_FAIL);
  EXPECT_EQ(root.told.wCode, 0);
  EXPECT_EQ(std::wstring(root.told.bstrSource), L"Simulator");
  EXPECT_EQ(std::wstring(root.told.bstrDescription), L"No buzzer of code 3.");
}

TEST_F(TestServer, HasOneInterfaceForWhatOffersTheSame) {
  const GUID stop = root.Object(L"FieldStopDevice").InterfaceId();
  EXPECT_NE(stop, GUID_NULL);
  EXPECT_EQ(root.Object(L"NDFilterDevice").InterfaceId(), stop);
  EXPECT_NE(root.Object(L"NosepieceDevice").InterfaceId(), stop);
  EXPECT_NE(root.InterfaceId(), stop);
}

TEST_F(TestServer, KnowsNoMemberByTheIdOfAnotherInterface) {
  const Bare stop = root.Object(L"FieldStopDevice");
  const Bare nosepiece = root.Object(L"NosepieceDevice");
  EXPECT_EQ(stop.Invoke(stop.Id(L"Position"), DISPATCH_PROPERTYGET), S_OK);
  EXPECT_EQ(nosepiece.Invoke(stop.Id(L"Position"), DISPATCH_PROPERTYGET), DISP_E_MEMBERNOTFOUND);
}

struct Walk {
  explicit Walk(const Bare& collection) {
    EXPECT_EQ(collection.Invoke(DISPID_NEWENUM, DISPATCH_PROPERTYGET), S_OK);
    EXPECT_EQ(collection.result.get()->vt, VT_UNKNOWN);
    items = ComPointer<IUnknown>(collection.result.get()->punkVal).As<IEnumVARIANT>();
    collection.result.get()->vt = VT_EMPTY;
  }

  // The addresses of the next items.
  static std::vector<LONG> Take(IEnumVARIANT& walk, ULONG count) {
    std::vector<VARIANT> taken(count);
    ULONG fetched = 0;
    const HRESULT result = walk.Next(count, taken.data(), &fetched);
    EXPECT_EQ(result, fetched == count ? S_OK : S_FALSE);
    std::vector<LONG> addresses;
    for (ULONG i = 0; i < fetched; ++i) {
      const Bare item{ComPointer<IDispatch>(taken[i].pdispVal)};
      EXPECT_EQ(item.Invoke(L"Position", DISPATCH_PROPERTYGET), S_OK);
      addresses.push_back(item.result.get()->lVal);
    }
    return addresses;
  }

  ComPointer<IEnumVARIANT> items;
};

TEST_F(TestServer, WalksSkipsRepeatsAndCopies) {
  const Walk walk(root.Object(L"NosepieceDevice").Object(L"Positions"));
  using Longs = std::vector<LONG>;
  EXPECT_EQ(Walk::Take(*walk.items.get(), 2), (Longs{1, 2}));
  EXPECT_EQ(walk.items->Skip(1), S_OK);
  ComPointer<IEnumVARIANT> copy;
  EXPECT_EQ(walk.items->Clone(copy.Out()), S_OK);
  EXPECT_EQ(Walk::Take(*walk.items.get(), 5), (Longs{4, 5, 6}));
  EXPECT_EQ(Walk::Take(*copy.get(), 1), (Longs{4}));
  EXPECT_EQ(walk.items->Skip(1), S_FALSE);
  EXPECT_EQ(walk.items->Reset(), S_OK);
  EXPECT_EQ(Walk::Take(*walk.items.get(), 1), (Longs{1}));
}

}  // namespace
}  // namespace mortane::controller::test

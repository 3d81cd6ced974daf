// How the program calls a COM object, and what it makes of its failures.
#include <objbase.h>
#include <oleauto.h>

#include <array>

#include "common/Failure.h"
#include "controller/contract/BackEnd.h"
#include "controller/contract/com/ScriptedDispatch.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "platform/windows/Wide.h"

namespace mortane::controller::test {
namespace {

// A value handed in, as a text of its kind and itself.
std::string Described(const VARIANT& variant) {
  switch (variant.vt) {
    case VT_EMPTY:
      return "empty";
    case VT_BOOL:
      return "bool " + std::to_string(variant.boolVal);
    case VT_I2:
      return "integer " + std::to_string(variant.iVal);
    case VT_I4:
      return "long " + std::to_string(variant.lVal);
    case VT_R8:
      return "double " + std::to_string(variant.dblVal);
    case VT_BSTR:
      return "text " + ToUtf8({variant.bstrVal, SysStringLen(variant.bstrVal)});
    case VT_DISPATCH:
      return variant.pdispVal == nullptr ? "no object" : "object";
    default:
      return "kind " + std::to_string(variant.vt);
  }
}

// An object that writes down its calls.
struct Recorder {
  ScriptedObject object{[this](const ReceivedCall& call) {
    std::string line = "id " + std::to_string(call.id) + " flags " + std::to_string(call.flags);
    for (UINT i = 0; i < call.parameters->cArgs; ++i) {
      line += ", " + Described(call.parameters->rgvarg[i]);
    }
    for (UINT i = 0; i < call.parameters->cNamedArgs; ++i) {
      line += ", named " + std::to_string(call.parameters->rgdispidNamedArgs[i]);
    }
    lines.push_back(line);
    locales.push_back(call.locale);
    return result;
  }};
  std::vector<std::string> lines;
  std::vector<LCID> locales;
  HRESULT result = S_OK;
};

using Lines = std::vector<std::string>;

TEST(ComCall, ReadsAPropertyAndAMethodAlike) {
  Recorder recorder;
  recorder.object.seen->Get("Member");
  recorder.object.seen->Call("Member");
  recorder.object.seen->Get("");
  EXPECT_EQ(recorder.lines, (Lines{"id 7 flags 3", "id 7 flags 3", "id 0 flags 3"}));
}

TEST(ComCall, HandsArgumentsInFromTheLastToTheFirst) {
  Recorder recorder;
  recorder.object.seen->Call("Member", {1, std::string("two"), 3.0});
  recorder.object.seen->Put("Member", 4, {5, 6});
  EXPECT_EQ(recorder.lines, (Lines{"id 7 flags 3, double 3.000000, text two, long 1",
                                   "id 7 flags 4, long 4, long 6, long 5, named -3"}));
}

TEST(ComCall, KeepsTheKindOfEveryValue) {
  Recorder recorder;
  const std::vector<Value> values{Value(),
                                  true,
                                  false,
                                  std::int16_t{-2},
                                  std::int32_t{-2},
                                  0.5,
                                  std::string(),
                                  std::string("\xC3\xA4\0b", 4),
                                  ObjectRef(),
                                  recorder.object.seen};
  for (const Value& value : values) recorder.object.seen->Call("Member", Args({&value, 1}));
  const std::string call = "id 7 flags 3, ";
  EXPECT_EQ(recorder.lines, (Lines{call + "empty", call + "bool -1", call + "bool 0",
                                   call + "integer -2", call + "long -2", call + "double 0.500000",
                                   call + "text ", call + std::string("text \xC3\xA4\0b", 9),
                                   call + "no object", call + "object"}));
}

TEST(ComCall, AssignsAnObjectByReferenceAndElseByValue) {
  Recorder recorder;
  recorder.object.seen->Put("Member", recorder.object.seen);
  recorder.result = DISP_E_MEMBERNOTFOUND;
  EXPECT_NE(FailureOf([&] {
              recorder.object.seen->Put("Member", recorder.object.seen);
            }).find("Mortane:80020003: "),
            std::string::npos);
  EXPECT_EQ(recorder.lines,
            (Lines{"id 7 flags 8, object, named -3", "id 7 flags 8, object, named -3",
                   "id 7 flags 4, object, named -3"}));
}

TEST(ComCall, AssignsAnObjectOnceWhenTheLibraryRefusesIt) {
  Recorder recorder;
  recorder.result = DISP_E_TYPEMISMATCH;
  FailureOf([&] { recorder.object.seen->Put("Member", recorder.object.seen); });
  EXPECT_EQ(recorder.lines.size(), 1U);
}

TEST(ComCall, NamesOneLocaleWhoseNumbersHaveAPoint) {
  Recorder recorder;
  recorder.object.seen->Get("Member");
  recorder.object.seen->Put("Member", 1);
  EXPECT_EQ(recorder.locales, (std::vector<LCID>{0x409, 0x409}));
  EXPECT_EQ(recorder.object.dispatch->askedLocale, LCID{0x409});
}

TEST(ComCall, DoesNotReachTheLibraryWithAnObjectOfAnother) {
  Recorder recorder;
  SimulatedLibrary other(benches::Named("Quay"));
  const ObjectRef foreign = other.Create("Microscope");
  const auto number = [](auto use) {
    try {
      use();
      return 0;
    } catch (const Failure& failure) {
      return failure.Number();
    }
  };
  EXPECT_EQ(number([&] { recorder.object.seen->Put("Member", foreign); }), kConversionError);
  const std::array<Value, 2> both{std::string("text"), foreign};
  EXPECT_EQ(number([&] { recorder.object.seen->Call("Member", Args(both)); }), kConversionError);
  EXPECT_TRUE(recorder.lines.empty());
}

TEST(ComCall, DoesNotReachTheLibraryWithMoreArgumentsThanAnyMemberTakes) {
  Recorder recorder;
  recorder.object.seen->Call("Member", {1, 2, 3, 4, 5, 6, 7});
  recorder.object.seen->Put("Member", 0, {1, 2, 3, 4, 5, 6, 7});
  EXPECT_EQ(recorder.lines.size(), 2U);
  EXPECT_NE(FailureOf([&] {
              recorder.object.seen->Call("Member", {1, 2, 3, 4, 5, 6, 7, 8});
            }).find("Mortane:8002000E: "),
            std::string::npos);
  EXPECT_EQ(recorder.lines.size(), 2U);
}

TEST(ComCall, AsksForANameOncePerObjectWithoutTypeInformation) {
  Recorder recorder;
  recorder.object.seen->Get("One");
  recorder.object.seen->Put("One", 1);
  recorder.object.seen->Call("Two");
  recorder.object.seen->Get("One");
  EXPECT_EQ(recorder.object.dispatch->asked, (std::vector<std::wstring>{L"One", L"Two"}));
}

// Type information of its own, though it may be of the same interface as another.
ComPointer<ITypeInfo> TypeInfoOf(const GUID& id) {
  ComPointer<ICreateTypeLib2> library;
  ComPointer<ICreateTypeInfo> made;
  std::wstring name = L"Scripted";
  CreateTypeLib2(SYS_WIN64, L"scripted.tlb", library.Out());
  library->CreateTypeInfo(name.data(), TKIND_DISPATCH, made.Out());
  if (id != GUID_NULL) made->SetGuid(id);
  made->LayOut();
  return made.As<ITypeInfo>();
}

// The names that a second object is asked for after a first one has been asked for "One".
std::vector<std::wstring> AskedOfTheSecond(const ComPointer<ITypeInfo>& first,
                                           const ComPointer<ITypeInfo>& second) {
  Recorder one;
  Recorder two;
  one.object.dispatch->type = first;
  two.object.dispatch->type = second;
  one.object.seen->Get("One");
  EXPECT_EQ(one.object.dispatch->asked.size(), 1U);
  two.object.seen->Get("One");
  return two.object.dispatch->asked;
}

TEST(ComCall, TellsInterfacesApartByTheirIdentifiers) {
  constexpr GUID kId{0x6B0F4E60, 0x52A4, 0x4C0B, {1}};
  constexpr GUID kOther{0x6B0F4E60, 0x52A4, 0x4C0B, {2}};
  constexpr GUID kThird{0x6B0F4E60, 0x52A4, 0x4C0B, {3}};
  const std::vector<std::wstring> asked{L"One"};
  const ComPointer<ITypeInfo> shared = TypeInfoOf(kId);
  EXPECT_TRUE(AskedOfTheSecond(shared, shared).empty());
  EXPECT_EQ(AskedOfTheSecond(TypeInfoOf(kOther), TypeInfoOf(kThird)), asked);
}

TEST(ComCall, KnowsAnInterfaceThoughItsTypeInformationIsMadeAnew) {
  constexpr GUID kId{0x6B0F4E61, 0x52A4, 0x4C0B, {}};
  EXPECT_TRUE(AskedOfTheSecond(TypeInfoOf(kId), TypeInfoOf(kId)).empty());
}

TEST(ComCall, AsksEveryObjectWhoseInterfaceHasNoIdentifier) {
  const ComPointer<ITypeInfo> shared = TypeInfoOf(GUID_NULL);
  EXPECT_EQ(AskedOfTheSecond(shared, shared), std::vector<std::wstring>{L"One"});
}

TEST(ComCall, DoesNotAskForTheDefaultMember) {
  Recorder recorder;
  recorder.object.seen->Get("");
  recorder.object.seen->Put("", 1);
  EXPECT_TRUE(recorder.object.dispatch->asked.empty());
}

BSTR Text(const wchar_t* text) {
  return SysAllocString(text);
}

// The failure of a call that tells this.
std::string Told(const std::function<void(EXCEPINFO&)>& fill) {
  const ScriptedObject object([&](const ReceivedCall& call) {
    fill(*call.told);
    return DISP_E_EXCEPTION;
  });
  return FailureOf([&] { object.seen->Get("Member"); });
}

TEST(ComFailure, HasTheSourceTheNumberAndTheTextThatTheLibraryTold) {
  EXPECT_EQ(Told([](EXCEPINFO& told) {
              told.bstrSource = Text(L"Lens\x00E4");
              told.bstrDescription = Text(L"\x9855\x5FAE\x93E1.");
              told.bstrHelpFile = Text(L"help.chm");
              told.scode = E_ACCESSDENIED;
            }),
            "Lens\xC3\xA4:80070005: \xE9\xA1\x95\xE5\xBE\xAE\xE9\x8F\xA1.");
}

TEST(ComFailure, HasTheShortNumberWhenThatIsTold) {
  EXPECT_EQ(Told([](EXCEPINFO& told) {
              told.wCode = 1001;
              told.bstrSource = Text(L"Lens");
              told.bstrDescription = Text(L"Away.");
            }),
            "Lens:3E9: Away.");
}

TEST(ComFailure, HasTheNumberThatTheLibraryRaisedWithoutItsWrapping) {
  const auto number = [](SCODE code) { return Told([&](EXCEPINFO& told) { told.scode = code; }); };
  EXPECT_EQ(number(static_cast<SCODE>(0x800A0009)), ":9: ");
  EXPECT_EQ(number(static_cast<SCODE>(0x800AFFFF)), ":FFFF: ");
  EXPECT_EQ(number(static_cast<SCODE>(0x800B0009)), ":800B0009: ");
  EXPECT_EQ(number(static_cast<SCODE>(0x000A0009)), ":A0009: ");
}

HRESULT STDMETHODCALLTYPE FillInLater(EXCEPINFO* told) {
  told->bstrDescription = Text(L"filled in later");
  told->scode = E_FAIL;
  return S_OK;
}

TEST(ComFailure, IsFilledInWhenTheLibraryPutThatOff) {
  EXPECT_EQ(Told([](EXCEPINFO& told) {
              told.bstrSource = Text(L"Lens");
              told.pfnDeferredFillIn = FillInLater;
            }),
            "Lens:80004005: filled in later");
}

TEST(ComFailure, WithoutAWordFromTheLibraryHasTheSystemsText) {
  for (const HRESULT result : {E_FAIL, E_ACCESSDENIED, RPC_E_DISCONNECTED}) {
    const ScriptedObject object([&](const ReceivedCall&) { return result; });
    const auto code = static_cast<unsigned long>(result);
    for (const std::string& failure : {FailureOf([&] { object.seen->Get("Member"); }),
                                       FailureOf([&] { object.seen->Put("Member", 1); }),
                                       FailureOf([&] { object.seen->Call("Member"); })}) {
      EXPECT_TRUE(failure.starts_with("Mortane:")) << failure;
      EXPECT_TRUE(failure.ends_with(": " + SystemMessage(code))) << failure;
    }
  }
}

TEST(ComFailure, LeavesNoObjectBehind) {
  EXPECT_EQ(ScriptedDispatch::alive, 0);
}

}  // namespace
}  // namespace mortane::controller::test

// What the program makes of a COM object's answers.
#include <objbase.h>
#include <oleauto.h>

#include <limits>

#include "common/Failure.h"
#include "controller/contract/BackEnd.h"
#include "controller/contract/com/ScriptedDispatch.h"

namespace mortane::controller::test {
namespace {

using Fill = std::function<void(VARIANT&)>;

// The value of a member whose answer is filled in so.
Value Answered(const Fill& fill) {
  const ScriptedObject object([&](const ReceivedCall& call) {
    fill(*call.result);
    return S_OK;
  });
  return object.seen->Get("Member");
}

// The number of the failure that an answer is; 0 when it is none.
std::int32_t FailureNumber(const Fill& fill) {
  try {
    Answered(fill);
    return 0;
  } catch (const Failure& failure) {
    return failure.Number();
  }
}

template <typename Field, typename Number>
Fill Holding(VARTYPE type, Field VARIANT::*field, Number number) {
  return [=](VARIANT& variant) {
    variant.vt = type;
    variant.*field = static_cast<Field>(number);
  };
}

BSTR Text(std::wstring_view text) {
  return SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

struct AnswerRow {
  const char* name;
  Fill fill;
  Value value;
};

const std::vector<AnswerRow>& Answers() {
  static std::int32_t number = -70000;
  static VARIANT_BOOL truth = VARIANT_TRUE;
  static BSTR text = Text(L"there");
  static VARIANT inner;
  static const std::vector<AnswerRow> rows{
      {"empty", [](VARIANT& v) { v.vt = VT_EMPTY; }, {}},
      {"null", [](VARIANT& v) { v.vt = VT_NULL; }, {}},
      {"true", Holding(VT_BOOL, &VARIANT::boolVal, -1), true},
      {"false", Holding(VT_BOOL, &VARIANT::boolVal, 0), false},
      {"a true of 1", Holding(VT_BOOL, &VARIANT::boolVal, 1), true},
      {"a true in the upper byte", Holding(VT_BOOL, &VARIANT::boolVal, 0x100), true},
      {"signed byte", Holding(VT_I1, &VARIANT::cVal, -128), std::int32_t{-128}},
      {"byte", Holding(VT_UI1, &VARIANT::bVal, 255), std::int32_t{255}},
      {"integer", Holding(VT_I2, &VARIANT::iVal, -32768), std::int16_t{-32768}},
      {"unsigned integer", Holding(VT_UI2, &VARIANT::uiVal, 65535), std::int32_t{65535}},
      {"long", Holding(VT_I4, &VARIANT::lVal, -2147483647 - 1),
       std::numeric_limits<std::int32_t>::min()},
      {"unsigned long", Holding(VT_UI4, &VARIANT::ulVal, 2147483647), 2147483647},
      {"int", Holding(VT_INT, &VARIANT::intVal, -5), -5},
      {"unsigned int", Holding(VT_UINT, &VARIANT::uintVal, 5), 5},
      {"64 bits", Holding(VT_I8, &VARIANT::llVal, -2147483648LL),
       std::numeric_limits<std::int32_t>::min()},
      {"unsigned 64 bits", Holding(VT_UI8, &VARIANT::ullVal, 2147483647), 2147483647},
      {"single", Holding(VT_R4, &VARIANT::fltVal, 0.5), 0.5},
      {"double", Holding(VT_R8, &VARIANT::dblVal, 0.1), 0.1},
      {"currency",
       [](VARIANT& v) {
         v.vt = VT_CY;
         v.cyVal.int64 = 123456;
       },
       12.3456},
      {"decimal",
       [](VARIANT& v) {
         VarDecFromR8(2.5, &v.decVal);
         v.vt = VT_DECIMAL;
       },
       2.5},
      {"no text",
       [](VARIANT& v) {
         v.vt = VT_BSTR;
         v.bstrVal = nullptr;
       },
       std::string()},
      {"text",
       [](VARIANT& v) {
         v.vt = VT_BSTR;
         v.bstrVal = Text({L"\x00E4\0b", 3});
       },
       std::string("\xC3\xA4\0b", 4)},
      {"half a pair of text",
       [](VARIANT& v) {
         v.vt = VT_BSTR;
         v.bstrVal = Text(L"\xD83D");
       },
       std::string("\xEF\xBF\xBD")},
      {"no object", Holding(VT_DISPATCH, &VARIANT::llVal, 0), {}},
      {"no plain object", Holding(VT_UNKNOWN, &VARIANT::llVal, 0), {}},
      {"reference to a long",
       [](VARIANT& v) {
         v.vt = VT_I4 | VT_BYREF;
         v.plVal = reinterpret_cast<LONG*>(&number);
       },
       -70000},
      {"reference to a truth",
       [](VARIANT& v) {
         v.vt = VT_BOOL | VT_BYREF;
         v.pboolVal = &truth;
       },
       true},
      {"reference to a text",
       [](VARIANT& v) {
         v.vt = VT_BSTR | VT_BYREF;
         v.pbstrVal = &text;
       },
       std::string("there")},
      {"reference to a variant",
       [](VARIANT& v) {
         inner.vt = VT_I2;
         inner.iVal = 12;
         v.vt = VT_VARIANT | VT_BYREF;
         v.pvarVal = &inner;
       },
       std::int16_t{12}},
  };
  return rows;
}

TEST(ComAnswer, IsTheValueThatTheVariantHolds) {
  for (const AnswerRow& row : Answers()) EXPECT_EQ(Answered(row.fill), row.value) << row.name;
}

TEST(ComAnswer, ThatNoValueHoldsIsAFailure) {
  EXPECT_EQ(FailureNumber(Holding(VT_UI4, &VARIANT::ulVal, 2147483648U)), kOverflowError);
  EXPECT_EQ(FailureNumber(Holding(VT_UINT, &VARIANT::uintVal, 4294967295U)), kOverflowError);
  EXPECT_EQ(FailureNumber(Holding(VT_I8, &VARIANT::llVal, 2147483648LL)), kOverflowError);
  EXPECT_EQ(FailureNumber(Holding(VT_I8, &VARIANT::llVal, -2147483649LL)), kOverflowError);
  EXPECT_EQ(FailureNumber(Holding(VT_UI8, &VARIANT::ullVal, 2147483648LL)), kOverflowError);
  EXPECT_EQ(FailureNumber(Holding(VT_DATE, &VARIANT::dblVal, 40000)), kConversionError);
  EXPECT_EQ(FailureNumber([](VARIANT& v) {
              v.vt = VT_ARRAY | VT_I4;
              v.parray = SafeArrayCreateVector(VT_I4, 0, 2);
            }),
            kConversionError);
  EXPECT_EQ(FailureNumber(Holding(VT_ERROR, &VARIANT::scode, DISP_E_PARAMNOTFOUND)),
            DISP_E_PARAMNOTFOUND);
}

TEST(ComAnswer, OfAnObjectUnderItsSimplestInterfaceIsAnObject) {
  auto* answered = new ScriptedDispatch([](const ReceivedCall& call) {
    call.result->vt = VT_I4;
    call.result->lVal = 3;
    return S_OK;
  });
  const Value value = Answered([&](VARIANT& v) {
    v.vt = VT_UNKNOWN;
    v.punkVal = answered;
  });
  EXPECT_EQ(std::get<ObjectRef>(value)->Get(""), Value(3));
}

// An object without late binding.
class Mute : public comserver::Unknown<IClassFactory> {
 public:
  STDMETHODIMP CreateInstance(IUnknown*, REFIID, void**) override { return E_NOTIMPL; }
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }
};

TEST(ComAnswer, OfAnObjectWithoutLateBindingIsAFailure) {
  EXPECT_EQ(FailureNumber([](VARIANT& v) {
              v.vt = VT_UNKNOWN;
              v.punkVal = new Mute;
            }),
            E_NOINTERFACE);
}

// One item, then the end; or a failure.
class OneItem : public comserver::Unknown<IEnumVARIANT> {
 public:
  explicit OneItem(HRESULT atTheEnd) : atTheEnd_(atTheEnd) {}
  STDMETHODIMP Next(ULONG, VARIANT* items, ULONG* fetched) override {
    *fetched = given_ ? 0 : 1;
    if (given_) return atTheEnd_;
    given_ = true;
    items->vt = VT_I4;
    items->lVal = 11;
    return S_OK;
  }
  STDMETHODIMP Skip(ULONG) override { return E_NOTIMPL; }
  STDMETHODIMP Reset() override { return E_NOTIMPL; }
  STDMETHODIMP Clone(IEnumVARIANT**) override { return E_NOTIMPL; }

 private:
  HRESULT atTheEnd_;
  bool given_ = false;
};

ObjectRef EnumeratorThatEndsWith(HRESULT result, VARTYPE type) {
  OneItem* items = new OneItem(result);
  const Value value = [&] {
    const ScriptedObject object([&](const ReceivedCall& call) {
      EXPECT_EQ(call.id, DISPID_NEWENUM);
      call.result->vt = type;
      if (type == VT_UNKNOWN) {
        call.result->punkVal = items;
        return S_OK;
      }
      auto* wrapper = new ScriptedDispatch([](const ReceivedCall&) { return E_FAIL; });
      wrapper->items = items;
      call.result->pdispVal = wrapper;
      return S_OK;
    });
    EXPECT_TRUE(object.dispatch->asked.empty());
    return object.seen->Get("_NewEnum");
  }();
  if (type == VT_DISPATCH) items->Release();
  return std::get<ObjectRef>(value);
}

TEST(ComEnumerator, IsFoundHoweverItIsHandedOut) {
  for (const VARTYPE type : {VT_UNKNOWN, VT_DISPATCH}) {
    const ObjectRef items = EnumeratorThatEndsWith(S_FALSE, type);
    EXPECT_EQ(items->Call("Next"), Value(11));
    EXPECT_EQ(items->Call("Next"), Value());
  }
}

TEST(ComEnumerator, EndsWhenNothingWasFetchedWhateverTheResultSays) {
  const ObjectRef items = EnumeratorThatEndsWith(S_OK, VT_UNKNOWN);
  items->Call("Next");
  EXPECT_EQ(items->Call("Next"), Value());
}

TEST(ComEnumerator, GivesItsFailure) {
  const ObjectRef items = EnumeratorThatEndsWith(E_ACCESSDENIED, VT_UNKNOWN);
  items->Call("Next");
  EXPECT_NE(FailureOf([&] { items->Call("Next"); }).find("Mortane:80070005: "), std::string::npos);
}

TEST(ComEnumerator, HasNothingButTheNextItem) {
  const ObjectRef items = EnumeratorThatEndsWith(S_FALSE, VT_UNKNOWN);
  for (const auto& use : std::vector<std::function<void()>>{
           [&] { items->Call("Reset"); }, [&] { items->Call("Next", {1}); },
           [&] { items->Get("Count"); }, [&] { items->Put("Next", 1); }}) {
    EXPECT_NE(FailureOf(use).find("Mortane:80020003: "), std::string::npos);
  }
  EXPECT_EQ(items->Get("Next"), Value(11));
}

TEST(ComEnumerator, IsAFailureWhenTheAnswerIsNone) {
  for (const VARTYPE type : {VT_I4, VT_UNKNOWN}) {
    const ScriptedObject object([&](const ReceivedCall& call) {
      call.result->vt = type;
      call.result->llVal = 0;
      return S_OK;
    });
    EXPECT_NE(FailureOf([&] { object.seen->Get("_NewEnum"); }).find("Mortane:80004002: "),
              std::string::npos);
  }
}

TEST(ComAnswer, LeavesNoObjectBehind) {
  EXPECT_EQ(ScriptedDispatch::alive, 0);
}

}  // namespace
}  // namespace mortane::controller::test

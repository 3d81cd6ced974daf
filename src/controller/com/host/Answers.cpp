#include "controller/com/host/Answers.h"

#include <oaidl.h>
#include <objbase.h>

#include <cstdint>
#include <cstdio>

#include "controller/com/ComPointer.h"
#include "controller/com/host/HostProtocol.h"
#include "platform/windows/Wide.h"

namespace mortane::controller::host {
namespace {

HRESULT Make(std::string_view className, ComPointer<IDispatch>& object) {
  const std::wstring text = ToWide(className);
  CLSID id{};
  HRESULT result = text.starts_with(L'{') ? CLSIDFromString(text.c_str(), &id)
                                          : CLSIDFromProgID(text.c_str(), &id);
  if (FAILED(result)) return result;
  void* made = nullptr;
  result = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &made);
  if (SUCCEEDED(result)) object = ComPointer<IDispatch>(static_cast<IDispatch*>(made));
  return result;
}

// Memory that a stream wrote may be larger than what it wrote.
HRESULT BytesOf(IStream& stream, std::string& bytes) {
  STATSTG about{};
  HRESULT result = stream.Stat(&about, STATFLAG_NONAME);
  if (FAILED(result)) return result;
  HGLOBAL memory = nullptr;
  result = GetHGlobalFromStream(&stream, &memory);
  if (FAILED(result)) return result;
  const void* data = GlobalLock(memory);
  if (data == nullptr) return E_OUTOFMEMORY;
  bytes.assign(static_cast<const char*>(data), static_cast<std::size_t>(about.cbSize.QuadPart));
  GlobalUnlock(memory);
  return S_OK;
}

HRESULT Marshal(IDispatch& object, std::string& bytes) {
  ComPointer<IStream> stream;
  HRESULT result = CreateStreamOnHGlobal(nullptr, TRUE, stream.Out());
  if (FAILED(result)) return result;
  result = CoMarshalInterface(stream.get(), IID_IDispatch, &object, MSHCTX_LOCAL, nullptr,
                              MSHLFLAGS_NORMAL);
  return FAILED(result) ? result : BytesOf(*stream.get(), bytes);
}

std::string Failed(HRESULT result) {
  char digits[9];
  std::snprintf(digits, sizeof digits, "%08X",
                static_cast<unsigned int>(static_cast<std::uint32_t>(result)));
  return std::string(kFailed) + digits + "\n";
}

}  // namespace

std::string AnswerTo(std::string_view request) {
  if (!request.starts_with(kCreate)) return Failed(E_INVALIDARG);
  ComPointer<IDispatch> object;
  std::string bytes;
  HRESULT result = Make(request.substr(kCreate.size()), object);
  if (SUCCEEDED(result)) result = Marshal(*object.get(), bytes);
  if (FAILED(result)) return Failed(result);
  return std::string(kObject) + std::to_string(bytes.size()) + "\n" + bytes;
}

}  // namespace mortane::controller::host

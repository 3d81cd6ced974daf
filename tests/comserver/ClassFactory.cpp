#include "comserver/ClassFactory.h"

#include "common/Failure.h"
#include "comserver/DispatchObject.h"
#include "comserver/ServedClasses.h"
#include "comserver/Server.h"
#include "comserver/Unknown.h"

namespace mortane::comserver {
namespace {

class ClassFactory : public Unknown<IClassFactory> {
 public:
  explicit ClassFactory(std::size_t place) : place_(place) {}

  // A class that the bench has not fails with the number of the library's failure; there is nothing
  // to tell more with.
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    try {
      const controller::ObjectRef served = CreateServed(place_);
      IDispatch* made =
          place_ == kTestControl ? MakeUncountedDispatch(served) : MakeDispatch(served);
      const HRESULT result = made->QueryInterface(id, object);
      made->Release();
      return result;
    } catch (const Failure& failure) {
      return FAILED(failure.Number()) ? failure.Number() : E_FAIL;
    } catch (const std::exception&) {
      return E_FAIL;
    }
  }
  STDMETHODIMP LockServer(BOOL lock) override {
    lock != FALSE ? comserver::LockServer() : UnlockServer();
    return S_OK;
  }

 private:
  std::size_t place_;
};

}  // namespace

IClassFactory* MakeFactory(std::size_t place) {
  return new ClassFactory(place);
}

}  // namespace mortane::comserver

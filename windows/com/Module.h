// The DLL as a whole: how many objects keep it loaded, its type library, and the store of each thread.
#pragma once

#include <memory>

#include "component/core/Component.h"
#include "windows/Handles.h"

namespace nv::windows {

/// Full path of the DLL.
std::wstring modulePath();

/// Keeps the DLL loaded as long as it lives: every object and every thread with a component holds one.
class ModuleReference {
 public:
  ModuleReference();
  ~ModuleReference();
  ModuleReference(const ModuleReference&) = delete;
  ModuleReference& operator=(const ModuleReference&) = delete;
};

/// IClassFactory::LockServer.
void lockModule(bool lock);
/// DllCanUnloadNow. When the answer is yes, the type library has been let go of.
bool mayUnloadModule();

/// A type of the embedded type library, which is read once and kept until the DLL may be unloaded.
/// Fails with an HRESULT when the library cannot be read.
HRESULT typeInfo(REFGUID guid, ComPtr<ITypeInfo>& info);

/// The component of the calling thread, made on first use. It lives as long as the thread or the last object that holds
/// it, whichever is longer, and keeps the DLL loaded, so that values outlive one instance of the class and are seen by
/// the next.
std::shared_ptr<Component> componentOfThisThread();

}  // namespace nv::windows

#include "windows/services/WindowsServices.h"

#include "windows/services/Files.h"
#include "windows/services/HostInstallation.h"
#include "windows/services/Machine.h"
#include "windows/services/MessageBoxes.h"
#include "windows/services/Shell.h"

namespace nv::windows {

const platform::Services& windowsServices() {
  static MessageBoxes messages;
  static Files files;
  static Machine machine;
  static Shell shell;
  static HostInstallation installation;
  static const platform::Services services{messages, files, machine, shell, installation};
  return services;
}

}  // namespace nv::windows

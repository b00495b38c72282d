#include "shell/SystemInfo.h"

#include <QFileInfo>

#include "basic/PlatformPath.h"
#include "shell/Store.h"

namespace tavrelin {

QString SystemInfoTool(const Store& store) {
  const QString path = store.GetMachineRegistryString(
      QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"), QStringLiteral("PATH"));
  if (!path.isEmpty()) return PlatformPath(path);
  const QString folder = store.GetMachineRegistryString(
      QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"), QStringLiteral("MSINFO"));
  if (folder.isEmpty()) return {};
  const QString tool = PlatformPath(folder + QLatin1String("\\MSINFO32.EXE"));
  return QFileInfo::exists(tool) ? tool : QString();
}

QString ProgramVersion() {
  return QStringLiteral(TAVRELIN_VERSION);
}

}  // namespace tavrelin

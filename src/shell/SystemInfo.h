#pragma once

#include <QString>

namespace tavrelin {

class Store;

/// The platform path of the system information tool, as the machine's store tells it: the value
/// PATH of the tool's own section, failing that the folder MSINFO of the shared tools, taken only
/// if the tool's file is there. Empty where neither gives a path.
QString SystemInfoTool(const Store& store);

/// The program's major, minor and revision numbers, joined by ".".
QString ProgramVersion();

}  // namespace tavrelin

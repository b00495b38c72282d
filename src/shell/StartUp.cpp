#include "shell/StartUp.h"

#include <QFileInfo>

#include "basic/PlatformPath.h"
#include "data/clsDDP.h"
#include "data/Connection.h"
#include "data/DataSource.h"
#include "data/NewFile.h"
#include "data/Schema.h"
#include "shell/ClubDatabase.h"
#include "shell/Store.h"
#include "shell/StoredValues.h"

namespace tavrelin {

namespace {

// All of it is the window's Form_Load, and the trail of an error says so.
constexpr char FormLoad[] = "Form_Load";

}  // namespace

StartUp::StartUp(Store& store, const CSError::Display& showError)
    : store_(store), showError_(showError), errors_(showError) {}

StartUp::~StartUp() = default;

void StartUp::Run(const QString& commandLine) {
  SeedStore();
  ChooseDatabase(commandLine);
  UpdateDatabase();
}

void StartUp::SeedStore() {
  if (store_.RegistryKeyState({}) > 0) clsDDP(showError_).UpdateRegistry(store_);
}

void StartUp::ChooseDatabase(const QString& commandLine) {
  UseDatabase({});
  UseDatabase(DataSourceWorks() ? store_.Get(stored::CurrentDatabase) : StoredPath());
  const QString named = commandLine.trimmed();
  if (!named.isEmpty()) UseDatabase(named);
}

// That the data source does not open is how a missing one is noticed: no failure. One whose file is
// open in another copy of the program is there all the same; a second start must not lead the
// operator away from it for good.
bool StartUp::DataSourceWorks() const {
  try {
    Connection test;
    test.Open(ConnectString);
    return true;
  } catch (const Error& error) {
    return error.number() == errors::FileInUse;
  }
}

QString StartUp::StoredPath() {
  const QString path = store_.Get(stored::CurrentDatabase);
  if (!path.isEmpty()) return path;
  errors_.Run(FormLoad, [this] { StoreDatabasePath(store_, QLatin1String(DefaultDatabase)); });
  return QLatin1String(DefaultDatabase);
}

void StartUp::UpdateDatabase() {
  errors_.Run(FormLoad, [this] {
    DeliverFirstFile();
    UpdateDatabaseInUse(showError_);
  });
  HoldFile();
}

void StartUp::HoldFile() {
  try {
    const QString file = FileOfConnectString(ConnectString);
    if (file == held_) return;
    claim_ = FileClaim();
    held_.clear();
    if (!QFileInfo(file).isFile()) return;
    claim_ = FileClaim(file);
    held_ = file;
    RemoveLeftovers(file, QFileInfo(file).absolutePath());
  } catch (const Error&) {
    held_.clear();
  }
}

void StartUp::DeliverFirstFile() const {
  const QString path = PlatformPath(QLatin1String(DefaultDatabase));
  const bool isDefault = PlatformPath(DatabasePath) == path;
  if (isDefault && !QFileInfo::exists(path)) DeliverClubFile(path);
}

}  // namespace tavrelin

#include "shell/StartUp.h"

#include <QFileInfo>

#include "basic/PlatformPath.h"
#include "data/clsDDP.h"
#include "data/Connection.h"
#include "data/DataSource.h"
#include "data/Schema.h"
#include "shell/Store.h"

namespace tavrelin {

namespace {

const QString DataSource = QStringLiteral("uid=;pwd=;dsn=Tavrelin");
const QString CurrentDatabase = QStringLiteral("CurrentDatabase");

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
  ConnectString = DataSource;
  const bool stored = !DataSourceWorks();
  DatabasePath = stored ? StoredPath() : store_.GetRegistryString({}, CurrentDatabase);
  if (!DatabasePath.isEmpty()) ConnectString = ConnectStringFor(DatabasePath);
  const QString named = commandLine.trimmed();
  if (named.isEmpty()) return;
  DatabasePath = named;
  ConnectString = ConnectStringFor(DatabasePath);
}

// That the data source does not open is how a missing one is noticed: no failure. One whose file is
// open in another copy of the program is there all the same; a second start must not lead the
// operator away from it for good.
bool StartUp::DataSourceWorks() const {
  try {
    Connection test;
    test.Open(DataSource);
    return true;
  } catch (const Error& error) {
    return error.number() == errors::FileInUse;
  }
}

QString StartUp::StoredPath() {
  const QString path = store_.GetRegistryString({}, CurrentDatabase);
  if (!path.isEmpty()) return path;
  errors_.Run(FormLoad, [this] {
    if (store_.SaveRegistryString({}, CurrentDatabase, QLatin1String(DefaultDatabase))) return;
    throw Error(errors::File,
                QStringLiteral("Your settings cannot be kept in %1. The program works, but forgets "
                               "them when it ends. See that you may write to that folder.")
                    .arg(store_.File()));
  });
  return QLatin1String(DefaultDatabase);
}

void StartUp::UpdateDatabase() {
  errors_.Run(FormLoad, [this] {
    DeliverFirstFile();
    UpdateDB();
  });
  HoldFile();
}

// The data source's own words do not help an operator who has chosen no database.
void StartUp::UpdateDB() {
  try {
    clsDDP(showError_).UpdateDB();
  } catch (const Error& error) {
    if (ConnectString != DataSource) throw;
    throw Error(
        error.number(),
        QStringLiteral("No club file is in use. Choose the club's file under Setup, Database; "
                       "its name ends in .mdb or .accdb.~") +
            error.description());
  }
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

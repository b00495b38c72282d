#pragma once

#include <QDate>
#include <QString>

#include "shell/CSError.h"

namespace tavrelin {

class Store;

/// DatabasePath and ConnectString for a path as the boxes keep it. An empty one, and one that ends
/// like no club's file, means the data source "Tavrelin".
void UseDatabase(const QString& path);

/// Keeps the path of the club's file for the next runs. Throws Error when the store cannot.
void StoreDatabasePath(Store& store, const QString& path);

/// The platform path of the club's file in use; empty when none is chosen.
QString DatabaseInUse();
/// The same for a path that is not in use yet.
QString DatabaseAt(const QString& path);

/// Brings the club's file in use up to date. Throws Error when it cannot be opened; what goes wrong
/// later is shown.
void UpdateDatabaseInUse(const CSError::Display& showError,
                         const QDate& today = QDate::currentDate());

}  // namespace tavrelin

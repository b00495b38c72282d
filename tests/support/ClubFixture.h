#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include "basic/Error.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "support/QtPrinters.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {

/// An empty file in a folder of its own, open through `connection`.
struct ClubFixture : testing::Test {
  ClubFixture() : path(folder.filePath(QStringLiteral("Club.mdb"))) {
    Raw("PRAGMA application_id = 0x5456524C; PRAGMA user_version = 1");
    connection.Open(ConnectText());
  }

  QString ConnectText() const { return QStringLiteral("DBQ=%1;").arg(path); }

  /// Runs statements as any SQLite tool would, beside the program; the first cell of the last row.
  QString Raw(const char* sql) const {
    sqlite3* db = nullptr;
    EXPECT_EQ(sqlite3_open(QFile::encodeName(path).constData(), &db), SQLITE_OK);
    QString last;
    const auto keep = [](void* to, int columns, char** cells, char**) {
      if (columns > 0) *static_cast<QString*>(to) = QString::fromUtf8(cells[0]);
      return 0;
    };
    EXPECT_EQ(sqlite3_exec(db, sql, keep, &last, nullptr), SQLITE_OK)
        << sql << ": " << sqlite3_errmsg(db);
    sqlite3_close(db);
    return last;
  }

  qint64 Run(const QString& sql, const QList<Value>& parameters = {}) {
    return connection.Execute(sql, parameters);
  }
  /// The first cell of a query.
  Value Ask(const QString& sql, const QList<Value>& parameters = {}) {
    Recordset rows;
    rows.Open(sql, connection, Recordset::Lock::ReadOnly, parameters);
    return rows.AtEnd() ? Value() : rows.At(0);
  }
  /// A query's first column, blanks between.
  QString List(const QString& sql) {
    Recordset rows;
    rows.Open(sql, connection);
    return Column(rows, rows.Fields().first().name);
  }
  /// The number of the Error that a statement ends with; 0 when it is carried out.
  int Refusal(const QString& sql, const QList<Value>& parameters = {}) {
    try {
      Run(sql, parameters);
    } catch (const Error& error) {
      EXPECT_FALSE(error.description().isEmpty());
      return error.number();
    }
    return 0;
  }

  QTemporaryDir folder;
  QString path;
  Connection connection;
};

}  // namespace tavrelin

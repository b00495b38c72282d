#include "shell/Store.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QStandardPaths>
#include <QThread>

#include "basic/Error.h"
#include "basic/WholeFile.h"
#include "shell/StoredValues.h"

namespace tavrelin {

namespace {

constexpr qsizetype LongestValue = 255;
constexpr int LockWaitMilliseconds = 3000;
constexpr int LockPauseMilliseconds = 5;

struct Section {
  QString name;
  QList<QPair<QString, QString>> values;
};

/// All sections in the order in which they sprang up. Names are told apart without regard to case.
using Sections = QList<Section>;

bool SameName(const QString& a, const QString& b) {
  return a.compare(b, Qt::CaseInsensitive) == 0;
}

// A line holds one value, so what would end or divide the line is written as %XX. Everything else,
// backslashes and quotes among it, stands as it is and can be read and mended in any editor.
QString Escaped(const QString& text, const char* marks) {
  QString out;
  for (const QChar c : text) {
    const bool plain = c >= QChar(u' ') && !QLatin1String(marks).contains(c);
    if (plain) {
      out += c;
    } else {
      out += QStringLiteral("%%1").arg(int(c.unicode()), 2, 16, QLatin1Char('0')).toUpper();
    }
  }
  return out;
}

QString Unescaped(const QString& text) {
  QString out;
  for (qsizetype i = 0; i < text.size(); ++i) {
    bool hex = false;
    const ushort code = text[i] == u'%' ? text.mid(i + 1, 2).toUShort(&hex, 16) : ushort(0);
    out += hex ? QChar(code) : text[i];
    if (hex) i += 2;
  }
  return out;
}

Sections Parse(const QString& text) {
  Sections sections;
  for (const QString& line : text.split(QLatin1Char('\n'))) {
    const qsizetype equals = line.indexOf(QLatin1Char('='));
    if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'))) {
      sections.append({Unescaped(line.sliced(1, line.size() - 2)), {}});
    } else if (equals > 0) {
      if (sections.isEmpty()) sections.append(Section{});
      sections.last().values.append(
          {Unescaped(line.first(equals)), Unescaped(line.sliced(equals + 1))});
    }
  }
  return sections;
}

QByteArray Written(const Sections& sections) {
  QString text;
  for (const Section& section : sections) {
    text += QLatin1Char('[') + Escaped(section.name, "%]") + QLatin1String("]\n");
    for (const auto& [name, value] : section.values) {
      text += Escaped(name, "%=[") + QLatin1Char('=') + Escaped(value, "%") + QLatin1Char('\n');
    }
  }
  return text.toUtf8();
}

struct Contents {
  enum class State { Known, CannotBeOpened, CannotBeRead };
  State state = State::Known;
  Sections sections;  ///< none when the file is not there

  bool IsKnown() const { return state == State::Known; }
};

Contents Load(const QString& path) {
  QFile file(path);
  if (!QFileInfo::exists(path)) return {};
  if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly)) {
    return {Contents::State::CannotBeOpened, {}};
  }
  const QByteArray bytes = file.readAll();
  if (file.error() != QFile::NoError) return {Contents::State::CannotBeRead, {}};
  return {Contents::State::Known, Parse(QString::fromUtf8(bytes))};
}

const Section* FindSection(const Sections& sections, const QString& name) {
  for (const Section& section : sections) {
    if (SameName(section.name, name)) return &section;
  }
  return nullptr;
}

void Put(Sections& sections, const QString& sectionName, const QString& name,
         const QString& value) {
  qsizetype at = 0;
  while (at < sections.size() && !SameName(sections[at].name, sectionName)) ++at;
  if (at == sections.size()) sections.append({sectionName, {}});
  for (auto& [oldName, oldValue] : sections[at].values) {
    if (!SameName(oldName, name)) continue;
    oldValue = value;
    return;
  }
  sections[at].values.append({name, value});
}

/// Keeps other programs from writing the store meanwhile. It stands on the store's folder: there is
/// nothing that a program killed meanwhile could leave behind.
class StoreLock {
 public:
  explicit StoreLock(const QString& file)
      : folder_(open(QFile::encodeName(QFileInfo(file).absolutePath()).constData(),
                     O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    QDeadlineTimer deadline(LockWaitMilliseconds);
    while (flock(folder_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
      isHeld_ = !deadline.hasExpired();
      if (!isHeld_) return;
      QThread::msleep(LockPauseMilliseconds);
    }
  }
  ~StoreLock() {
    if (folder_ >= 0) close(folder_);
  }
  StoreLock(const StoreLock&) = delete;
  StoreLock& operator=(const StoreLock&) = delete;

  /// False when another program did not let go. Folders that cannot be locked, as some over a
  /// network, count as held.
  bool IsHeld() const { return isHeld_; }

 private:
  int folder_;
  bool isHeld_ = true;
};

bool WriteWhole(const QString& path, const QByteArray& bytes) {
  try {
    WriteWholeFile(path, bytes);
    return true;
  } catch (const Error&) {
    return false;
  }
}

QString Read(const QString& path, const QString& sectionName, const QString& name,
             const QString& fallback) {
  const Contents contents = Load(path);
  if (contents.state == Contents::State::CannotBeOpened) return {};
  const Section* section = FindSection(contents.sections, sectionName);
  if (!section) return fallback;
  for (const auto& [key, value] : section->values) {
    if (!SameName(key, name)) continue;
    const QString text = value.left(LongestValue).trimmed();
    return text.isEmpty() ? fallback : text;
  }
  return fallback;
}

QString UsableFolder(const QString& path) {
  return path.contains(QLatin1String("C:\\Program Files")) ? QLatin1String(DataFolder) : path;
}

QString PlatformFile() {
  QString named = qEnvironmentVariable("TAVRELIN_STORE");
  if (!named.isEmpty()) return named;
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QLatin1String("/Tavrelin/store.ini");
}

}  // namespace

Store::Store() : Store(PlatformFile()) {}

Store::Store(QString file) : file_(std::move(file)) {}

bool Store::SaveRegistryString(const QString& section, const QString& name, const QString& value) {
  if (!QDir().mkpath(QFileInfo(file_).absolutePath())) return false;
  const StoreLock lock(file_);
  if (!lock.IsHeld()) return false;
  Contents contents = Load(file_);
  if (!contents.IsKnown()) return false;
  Put(contents.sections, section, name, value);
  return WriteWhole(file_, Written(contents.sections));
}

QString Store::GetRegistryString(const QString& section, const QString& name,
                                 const QString& fallback) const {
  return Read(file_, section, name, fallback);
}

int Store::RegistryKeyState(const QString& section, const QString&) const {
  const Contents contents = Load(file_);
  if (!contents.IsKnown()) return 2;
  const bool exists = section.isEmpty() ? QFileInfo::exists(file_)
                                        : FindSection(contents.sections, section) != nullptr;
  return exists ? 0 : 1;
}

QString Store::GetMachineRegistryString(const QString& section, const QString& name,
                                        const QString& fallback) const {
  const QString machine = qEnvironmentVariable("TAVRELIN_MACHINE_STORE");
  return machine.isEmpty() ? fallback : Read(machine, section, name, fallback);
}

QString Store::Get(const StoredValue& value, const QString& section) const {
  const QString text = GetRegistryString(section.isEmpty() ? QLatin1String(value.section) : section,
                                         QLatin1String(value.name), QLatin1String(value.fallback));
  return value.isFolder ? UsableFolder(text) : text;
}

bool Store::Save(const StoredValue& value, const QString& text, const QString& section) {
  return SaveRegistryString(section.isEmpty() ? QLatin1String(value.section) : section,
                            QLatin1String(value.name), text);
}

}  // namespace tavrelin

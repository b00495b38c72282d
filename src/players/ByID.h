#pragma once

#include <QHash>
#include <QString>

namespace tavrelin {

/// What a player or team number is compared by. As everywhere in the file, neither case nor blanks
/// around it tell one from another: an imported "ab12" is the player that a game knows as "AB12".
inline QString IDKey(const QString& id) {
  return id.trimmed().toCaseFolded();
}

/// Values by player or team number.
template <typename T>
class ByID {
 public:
  T& operator[](const QString& id) { return values_[IDKey(id)]; }
  bool contains(const QString& id) const { return values_.contains(IDKey(id)); }
  T value(const QString& id, const T& otherwise = {}) const {
    return values_.value(IDKey(id), otherwise);
  }

 private:
  QHash<QString, T> values_;
};

}  // namespace tavrelin

#pragma once

#include <cstdio>
#include <QByteArray>
#include <QFile>

/// Writes this process's peak of memory in kilobytes to standard output.
inline void TellPeakOfMemory() {
  QFile status("/proc/self/status");
  if (!status.open(QIODevice::ReadOnly)) return;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmHWM:")) std::puts(line.mid(6).simplified().split(' ').first());
  }
  std::fflush(stdout);
}

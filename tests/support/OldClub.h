#pragma once

#include <QString>

/// Makes a club file as the program left it before a step of the upgrade (1 to 26) came: the
/// present layout without all that this step and the later ones add, and with a few rows in it. The
/// version row holds what a file of that age holds.
void MakeOldClub(const QString& path, int beforeStep);

/// The stamp that a file has before a step; empty where there is no version row yet.
QString VersionBefore(int step);

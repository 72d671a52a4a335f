#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QString>
#include <QStringList>

/// The peers are in a bundle next to the launcher and load plug-ins from the same folder, so that
/// the comparison measures the work and not the folders.
inline void UseBundledPlugins(char const* executable) {
  QString const beside = QString::fromLocal8Bit(executable) + "/../../Frameworks/plugins";
  QCoreApplication::setLibraryPaths(QStringList{QDir::cleanPath(beside)});
}

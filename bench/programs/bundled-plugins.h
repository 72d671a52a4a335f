#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QString>
#include <QStringList>

/// The peers stand beside the launcher in a bundle and look for plug-ins where it does, so that
/// what is compared is the work and not the folders.
inline void UseBundledPlugins(char const* executable) {
  QString const beside = QString::fromLocal8Bit(executable) + "/../../Frameworks/plugins";
  QCoreApplication::setLibraryPaths(QStringList{QDir::cleanPath(beside)});
}

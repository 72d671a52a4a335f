#pragma once

#include "foundation/ustring.h"

/// Five paths of an installation, relative to the running executable. Nothing in the launcher reads
/// them, and their bases deliberately differ from those of Service's paths: use those to find a
/// file.
///
/// The constructor accesses no file and can't fail; the application object must exist.
class PackageInfo {
 public:
  PackageInfo();

  ustring images_path;        ///< folder of images
  ustring log_path;           ///< log folder in the home directory
  ustring debug_marker_path;  ///< debug marker file
  ustring package_path;       ///< the package file
  ustring conf_path;          ///< configuration folder
};

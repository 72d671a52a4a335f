#pragma once

#include "foundation/ustring.h"

/// The five places of an installation as seen from the running executable, written down as a plain
/// record. Nothing in the launcher reads it, and its bases differ from those of the path operations
/// of Service on purpose: use those to find a place.
///
/// Making one touches no file and can't fail; the application object must exist.
class PackageInfo {
 public:
  PackageInfo();

  ustring images_path;        ///< folder of images
  ustring log_path;           ///< log folder in the home directory
  ustring debug_marker_path;  ///< debug marker file
  ustring package_path;       ///< the package file
  ustring conf_path;          ///< configuration folder
};

file(GLOB larkmoor_qt /usr/lib/*/cmake/Qt5/Qt5ConfigVersion.cmake)
include(${larkmoor_qt})

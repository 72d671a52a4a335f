# spdlog, for its headers alone.
add_library(spdlog::spdlog INTERFACE IMPORTED)

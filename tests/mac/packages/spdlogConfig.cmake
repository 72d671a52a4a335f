# spdlog, only its headers.
add_library(spdlog::spdlog INTERFACE IMPORTED)

# Google Benchmark's headers. Its symbols contain the std::string of this system's C++ library, so a stub
# library would have none of a Mac's: they stay undefined until run time.
add_library(benchmark::benchmark_main INTERFACE IMPORTED)
target_link_options(benchmark::benchmark_main INTERFACE -Wl,-undefined,dynamic_lookup)

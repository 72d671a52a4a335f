# Google Benchmark to compile against. Its names carry the std::string of this system's C++ library,
# which no stub library can offer for a Mac's: they are left to the run.
add_library(benchmark::benchmark_main INTERFACE IMPORTED)
target_link_options(benchmark::benchmark_main INTERFACE -Wl,-undefined,dynamic_lookup)

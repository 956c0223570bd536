# The stand-in for a network share, for tests and for the programs that measure; without libfuse both go without it.
pkg_check_modules(FUSE QUIET IMPORTED_TARGET fuse3)
if(FUSE_FOUND AND NOT TARGET tessaro_share)
  add_executable(tessaro_share ${CMAKE_SOURCE_DIR}/tests/harness/share.cpp)
  target_link_libraries(tessaro_share PRIVATE PkgConfig::FUSE Threads::Threads)
endif()

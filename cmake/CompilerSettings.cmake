# Signals and slots are written with their Q_ macros everywhere: Qt's keywords are words that other libraries use as names.
add_compile_definitions(QT_NO_KEYWORDS QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
                    -fvisibility=hidden -fdiagnostics-color=auto)

find_program(TESSARO_MOLD mold)
if(TESSARO_MOLD)
  add_link_options(-fuse-ld=mold)
endif()

if(TESSARO_SANITIZE)
  add_compile_options(-fsanitize=${TESSARO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=${TESSARO_SANITIZE})
endif()

if(TESSARO_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()

# Programs that can lie anywhere in memory; position-independent code alone does not say so to the linker.
include(CheckPIESupported)
check_pie_supported()

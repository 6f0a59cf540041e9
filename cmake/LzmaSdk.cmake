# LzmaSdk::LzmaSdk: the C 7z decoder, built from the SDK's sources in LZMA_SDK_DIR.
if(NOT EXISTS "${LZMA_SDK_DIR}/7zArcIn.c")
    message(FATAL_ERROR "No LZMA SDK in ${LZMA_SDK_DIR}: run tools/setup, "
        "or give another copy with -DLZMA_SDK_DIR=<folder of 7zArcIn.c>.")
endif()

set(lzma_sources 7zAlloc 7zArcIn 7zBuf 7zCrc 7zCrcOpt 7zDec 7zFile 7zStream Bcj2 Bra Bra86 BraIA64 CpuArch
    Delta Lzma2Dec LzmaDec Ppmd7 Ppmd7Dec)
list(TRANSFORM lzma_sources PREPEND "${LZMA_SDK_DIR}/")
list(TRANSFORM lzma_sources APPEND ".c")

add_library(LzmaSdk STATIC ${lzma_sources})
add_library(LzmaSdk::LzmaSdk ALIAS LzmaSdk)
target_include_directories(LzmaSdk SYSTEM PUBLIC "${LZMA_SDK_DIR}")
target_compile_definitions(LzmaSdk PUBLIC Z7_PPMD_SUPPORT)
target_compile_options(LzmaSdk PRIVATE $<$<COMPILE_LANGUAGE:C>:-w $<$<NOT:$<CONFIG:Debug>>:-O3>>)
if(VORLAN_SANITIZE)
    # The SDK reads unaligned numbers on processors that allow it, and adds 0 to a null pointer where
    # there is nothing to read.
    target_compile_options(LzmaSdk PRIVATE -fno-sanitize=alignment,pointer-overflow)
endif()
if(NOT WIN32)
    # The SDK knows wide file names only with Windows file calls: it gets those of our own layer,
    # so that injected faults reach its reads and writes as well.
    target_compile_definitions(LzmaSdk PUBLIC USE_WINDOWS_FILE)
    target_compile_options(LzmaSdk PRIVATE "$<$<COMPILE_LANGUAGE:C>:SHELL:-include windows.h>")
    target_link_libraries(LzmaSdk PUBLIC Pal)
endif()

include(cmake/DecoderAssembler.cmake)

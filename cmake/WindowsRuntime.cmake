# Puts what the programs load beside them: the folder of the programs can then be copied anywhere.
function(vorlan_place_beside_programs file subfolder)
    file(COPY "${file}" DESTINATION "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${subfolder}")
    if(VORLAN_INSTALL)
        install(FILES "${file}" DESTINATION "${CMAKE_INSTALL_BINDIR}/${subfolder}")
    endif()
endfunction()

function(vorlan_place_imported subfolder)
    foreach(target IN LISTS ARGN)
        get_target_property(file ${target} IMPORTED_LOCATION_RELEASE)
        vorlan_place_beside_programs("${file}" "${subfolder}")
    endforeach()
endfunction()

# The compiler's own libraries lie beside its other libraries (Debian) or beside itself (Qt's kit).
function(vorlan_place_compiler_library name)
    execute_process(COMMAND "${CMAKE_CXX_COMPILER}" "-print-file-name=${name}"
        OUTPUT_VARIABLE beside_libraries OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    cmake_path(GET CMAKE_CXX_COMPILER PARENT_PATH compiler_folder)
    foreach(file IN ITEMS "${beside_libraries}" "${compiler_folder}/${name}")
        if(IS_ABSOLUTE "${file}" AND EXISTS "${file}")
            vorlan_place_beside_programs("${file}" "")
            return()
        endif()
    endforeach()
    message(FATAL_ERROR "The compiler's ${name} is not found: install the whole MinGW-w64 kit.")
endfunction()

vorlan_place_imported("" Qt5::Core Qt5::Gui Qt5::Widgets CURL::libcurl)
vorlan_place_imported(platforms Qt5::QWindowsIntegrationPlugin Qt5::QOffscreenIntegrationPlugin)
foreach(library libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
    vorlan_place_compiler_library(${library})
endforeach()

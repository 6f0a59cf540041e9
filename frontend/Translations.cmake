# Compiles resources/locales/<code>/InstallerGUI_<code>.ts to the same path in the programs' folder,
# where the front end and the engine load them.
find_program(LRELEASE lrelease REQUIRED HINTS /usr/lib/qt5/bin)

file(GLOB translation_sources CONFIGURE_DEPENDS
    RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" "resources/locales/*/*.ts")

set(compiled_translations)
foreach(source IN LISTS translation_sources)
    cmake_path(REPLACE_EXTENSION source LAST_ONLY ".qm" OUTPUT_VARIABLE relative)
    set(compiled "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${relative}")
    cmake_path(GET compiled PARENT_PATH folder)
    add_custom_command(OUTPUT "${compiled}"
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
        COMMAND "${LRELEASE}" -silent "${CMAKE_CURRENT_SOURCE_DIR}/${source}" -qm "${compiled}"
        DEPENDS "${source}"
        VERBATIM)
    list(APPEND compiled_translations "${compiled}")
endforeach()

add_custom_target(translations ALL DEPENDS ${compiled_translations})
add_dependencies(installergui translations)

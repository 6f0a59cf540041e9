# Renders the pictures of resources/pictures/ in single and double size ("name@2x.png", for high-DPI
# screens) and compiles them to resources. The texts in pictures are in taglines.txt, with one picture
# for each language. Needs rsvg-convert (Debian package librsvg2-bin) and the fonts that taglines.txt
# names.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

set(picture_sources "${CMAKE_CURRENT_SOURCE_DIR}/resources/pictures")
set(picture_folder "${CMAKE_CURRENT_BINARY_DIR}/pictures")
set(pictures)
set(picture_entries)

# vorlan_draw_picture(<drawing.svg> <path of the resource, without ".png">)
function(vorlan_draw_picture drawing resource)
    foreach(scale IN ITEMS 1 2)
        set(file "${resource}.png")
        if(scale EQUAL 2)
            set(file "${resource}@2x.png")
        endif()
        set(picture "${picture_folder}/${file}")
        cmake_path(GET picture PARENT_PATH folder)
        file(MAKE_DIRECTORY "${folder}")
        add_custom_command(OUTPUT "${picture}"
            COMMAND "${RSVG_CONVERT}" --zoom=${scale} --output=${picture} "${drawing}"
            DEPENDS "${drawing}"
            VERBATIM)
        list(APPEND pictures "${picture}")
        string(APPEND picture_entries "<file>${file}</file>\n")
    endforeach()
    set(pictures "${pictures}" PARENT_SCOPE)
    set(picture_entries "${picture_entries}" PARENT_SCOPE)
endfunction()

foreach(icon IN ITEMS error info question)
    vorlan_draw_picture("${picture_sources}/alerts/${icon}.svg" "Icons/alerts/${icon}")
endforeach()
vorlan_draw_picture("${picture_sources}/icons/logo.svg" "Icons/vorlan/logo")
foreach(icon IN ITEMS arrow-down box-off box-on close close-dark done failed minimize next radio-off
    radio-on shield)
    vorlan_draw_picture("${picture_sources}/icons/${icon}.svg" "Icons/${icon}")
endforeach()
foreach(icon IN ITEMS quill uninstall)
    vorlan_draw_picture("${picture_sources}/../icons/${icon}.svg" "Icons/${icon}")
endforeach()
foreach(set IN ITEMS Backgrounds UninstallStart UninstallProgress)
    vorlan_draw_picture("${picture_sources}/backgrounds/${set}.svg" "Installer/${set}/en_US")
endforeach()

# vorlan_draw_text(<layer set> <locale> <font> <title> <line>)
function(vorlan_draw_text set locale FONT TITLE SUBTITLE)
    set(drawing "${picture_folder}/${set}-${locale}.svg")
    configure_file("${picture_sources}/backgrounds/${set}.svg.in" "${drawing}" @ONLY)
    vorlan_draw_picture("${drawing}" "Installer/${set}/${locale}")
    set(pictures "${pictures}" PARENT_SCOPE)
    set(picture_entries "${picture_entries}" PARENT_SCOPE)
endfunction()

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${picture_sources}/taglines.txt")
file(STRINGS "${picture_sources}/taglines.txt" taglines ENCODING UTF-8 REGEX "^[a-z]")
foreach(tagline IN LISTS taglines)
    string(REPLACE "|" ";" fields "${tagline}")
    list(GET fields 0 1 2 3 welcome)
    vorlan_draw_text(Taglines ${welcome})
    list(GET fields 0 1 4 5 progress)
    vorlan_draw_text(InstallProgress ${progress})
endforeach()

set(style_sheet "${CMAKE_CURRENT_SOURCE_DIR}/resources/styles/wizard.qss")
file(CONFIGURE OUTPUT "${picture_folder}/pictures.qrc" CONTENT
    "<RCC><qresource prefix=\"/\">\n<file alias=\"Styles/wizard.qss\">@style_sheet@</file>\n@picture_entries@</qresource></RCC>\n" @ONLY)
add_custom_command(OUTPUT "${picture_folder}/pictures.cpp"
    COMMAND Qt5::rcc --name pictures --no-compress --output "${picture_folder}/pictures.cpp"
        "${picture_folder}/pictures.qrc"
    DEPENDS ${pictures} "${picture_folder}/pictures.qrc" "${style_sheet}"
    VERBATIM)

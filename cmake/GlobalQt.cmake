# A project that adds this one links the library and with it its Qt: the targets that find_package
# made for this folder are made known everywhere. Those that the other project found are so already.
get_property(qt_targets DIRECTORY PROPERTY IMPORTED_TARGETS)
list(FILTER qt_targets INCLUDE REGEX "^Qt5::")
if(qt_targets)
    set_target_properties(${qt_targets} PROPERTIES IMPORTED_GLOBAL TRUE)
endif()

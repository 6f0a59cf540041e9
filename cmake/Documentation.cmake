# Target `docs`: the reference of the library's interface, from the headers that are installed. A
# member without a contract is an error.
find_package(Doxygen QUIET)
if(NOT DOXYGEN_FOUND)
    return()
endif()

set(DOXYGEN_PROJECT_BRIEF "Reference of the interface")
set(DOXYGEN_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/docs")
set(DOXYGEN_USE_MDFILE_AS_MAINPAGE "${PROJECT_SOURCE_DIR}/docs/reference.md")
set(DOXYGEN_STRIP_FROM_PATH "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/docs")
set(DOXYGEN_JAVADOC_AUTOBRIEF YES)
set(DOXYGEN_BUILTIN_STL_SUPPORT YES)
set(DOXYGEN_SORT_MEMBER_DOCS NO)
set(DOXYGEN_HAVE_DOT NO)
set(DOXYGEN_GENERATE_LATEX NO)
set(DOXYGEN_QUIET YES)
set(DOXYGEN_WARN_NO_PARAMDOC NO)
set(DOXYGEN_WARN_AS_ERROR FAIL_ON_WARNINGS)
# The marks of the interface are no part of it.
set(DOXYGEN_MACRO_EXPANSION YES)
set(DOXYGEN_EXPAND_ONLY_PREDEF YES)
set(DOXYGEN_PREDEFINED "INSTALLER_EXPORT=" "Q_OBJECT=")

get_target_property(headers InstallerLib HEADER_SET)
list(TRANSFORM headers PREPEND "${PROJECT_SOURCE_DIR}/src/" REGEX "^[^/]")
doxygen_add_docs(docs ${headers} "${PROJECT_SOURCE_DIR}/docs/reference.md"
    COMMENT "Writing the reference to ${DOXYGEN_OUTPUT_DIRECTORY}/html")

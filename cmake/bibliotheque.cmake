# A library: its folder is what its users may include, and FLECHES is all that it may include itself.
# interne/ is seen by the library alone; an arrow that is not listed is "No such file".
# Each public header is also compiled alone (target <name>_verify_interface_header_sets).
function(zof_bibliotheque nom)
  cmake_parse_arguments(A "" "DOSSIER" "FLECHES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${A_DOSSIER}/*.cpp ${A_DOSSIER}/interne/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  file(GLOB entetes CONFIGURE_DEPENDS ${A_DOSSIER}/*.hpp)
  if(sources)
    set(portee PUBLIC)
    add_library(${nom} STATIC ${sources})
    target_include_directories(${nom} PRIVATE ${A_DOSSIER}/interne)
    target_link_libraries(${nom} PRIVATE zof_compilation)
  else()
    set(portee INTERFACE)
    add_library(${nom} INTERFACE)
  endif()
  if(entetes)
    target_sources(${nom} ${portee} FILE_SET HEADERS BASE_DIRS ${A_DOSSIER} FILES ${entetes})
  endif()
  target_compile_features(${nom} ${portee} cxx_std_20)
  target_link_libraries(${nom} ${portee} ${A_FLECHES})
  set_target_properties(${nom} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  # What a test of the library's own inner parts links to, in place of the library.
  add_library(${nom}_interne INTERFACE)
  target_include_directories(${nom}_interne INTERFACE ${CMAKE_CURRENT_SOURCE_DIR}/${A_DOSSIER}/interne)
  target_link_libraries(${nom}_interne INTERFACE ${nom})
endfunction()

# The tests of a folder: one executable, run whole by CTest test by test.
function(zof_test nom)
  cmake_parse_arguments(A "" "DOSSIER;LABEL" "FLECHES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${A_DOSSIER}/*_test.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${nom} ${sources})
  target_link_libraries(${nom} PRIVATE ${A_FLECHES} zof_compilation GTest::gmock_main)
  target_compile_definitions(${nom} PRIVATE ZOF_DONNEES="${PROJECT_SOURCE_DIR}/tests/donnees"
                                            ZOF_EXEMPLES="${PROJECT_SOURCE_DIR}/examples"
                                            ZOF_RACINE="${PROJECT_SOURCE_DIR}")
  gtest_discover_tests(${nom} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 PROPERTIES LABELS ${A_LABEL} TIMEOUT 300)
endfunction()

# Helpers that keep the test folders short. Tests link the libraries they test,
# and every test runs headless.
include(GoogleTest)

# Screens run without a display. The folders of the test data and of the built programs reach
# the tests as the macros CORVALIN_DADOS_TESTE and CORVALIN_PASTA_BIN.
set(CORVALIN_AMBIENTE_TESTE "QT_QPA_PLATFORM=offscreen")

function(corvalin_pastas_de_teste alvo)
    target_compile_definitions(${alvo} PRIVATE
        CORVALIN_DADOS_TESTE="${CMAKE_SOURCE_DIR}/tests/data"
        CORVALIN_PASTA_BIN="${CMAKE_BINARY_DIR}/bin")
endfunction()

# corvalin_gtest(<name> SOURCES <files...> LIBS <targets...>)
function(corvalin_gtest nome)
    cmake_parse_arguments(A "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${nome} ${A_SOURCES})
    target_link_libraries(${nome} PRIVATE ${A_LIBS} GTest::gtest GTest::gtest_main GTest::gmock)
    corvalin_pastas_de_teste(${nome})
    gtest_discover_tests(${nome}
        DISCOVERY_MODE PRE_TEST
        PROPERTIES ENVIRONMENT "${CORVALIN_AMBIENTE_TESTE}")
endfunction()

# corvalin_qtest(<name> SOURCES <files...> LIBS <targets...>): one QtTest program, one ctest entry.
function(corvalin_qtest nome)
    cmake_parse_arguments(A "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${nome} ${A_SOURCES})
    set_target_properties(${nome} PROPERTIES AUTOMOC ON)
    target_link_libraries(${nome} PRIVATE ${A_LIBS} Qt6::Test)
    corvalin_pastas_de_teste(${nome})
    add_test(NAME ${nome} COMMAND ${nome})
    set_tests_properties(${nome} PROPERTIES ENVIRONMENT "${CORVALIN_AMBIENTE_TESTE}")
endfunction()

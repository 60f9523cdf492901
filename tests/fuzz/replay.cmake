# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later

# The fuzz targets without a fuzzer, over the files that they have found, and the examples with damage done to them.
# For the tests' CMakeLists.txt, after brenica_test_support.
set(fuzz ${CMAKE_CURRENT_LIST_DIR})

add_executable(brenica_fuzz_replay
    ${fuzz}/replay_main.cpp ${fuzz}/project_reader_fuzz.cpp ${fuzz}/fuzz_session.cpp)
target_include_directories(brenica_fuzz_replay PRIVATE ${fuzz})
target_link_libraries(brenica_fuzz_replay PRIVATE brenica_scripted)
add_test(NAME fuzz_corpus COMMAND brenica_fuzz_replay ${fuzz}/corpus)

add_executable(brenica_form_fuzz_replay ${fuzz}/replay_main.cpp ${fuzz}/form_fuzz.cpp)
target_include_directories(brenica_form_fuzz_replay PRIVATE ${fuzz})
target_link_libraries(brenica_form_fuzz_replay PRIVATE brenica_test_support brenica_batch_run)
add_test(NAME fuzz_form_corpus COMMAND brenica_form_fuzz_replay ${fuzz}/form_corpus)

add_executable(brenica_mutation_tests ${fuzz}/mutation_test.cpp ${fuzz}/fuzz_session.cpp)
target_include_directories(brenica_mutation_tests PRIVATE ${fuzz})
target_link_libraries(brenica_mutation_tests PRIVATE brenica_test_support GTest::gmock_main)
# One test each, so that they run side by side.
foreach(example small_landscape full_landscape version1_landscape)
    add_test(NAME damaged_${example}_cut_off
        COMMAND brenica_mutation_tests --gtest_filter=*.CutOff*/${example})
    add_test(NAME damaged_${example}_changed
        COMMAND brenica_mutation_tests --gtest_filter=*.Changed*/${example})
endforeach()

# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later

# The fuzz targets without a fuzzer, over the files that they have found, and the examples with damage done to them.
# For the tests' CMakeLists.txt, after brenica_test_support.
set(fuzz ${CMAKE_CURRENT_LIST_DIR})

# The target `name` over the files of a folder.
function(brenica_add_replay name corpus)
    add_executable(brenica_${name}_replay ${fuzz}/replay_main.cpp)
    foreach(source ${ARGN})
        target_sources(brenica_${name}_replay PRIVATE ${fuzz}/${source})
    endforeach()
    target_include_directories(brenica_${name}_replay PRIVATE ${fuzz})
    target_link_libraries(brenica_${name}_replay PRIVATE brenica_test_support brenica_batch_run)
    add_test(NAME fuzz_${corpus} COMMAND brenica_${name}_replay ${fuzz}/${corpus})
endfunction()

brenica_add_replay(fuzz corpus project_reader_fuzz.cpp fuzz_session.cpp)
brenica_add_replay(form_fuzz form_corpus form_fuzz.cpp)
brenica_add_replay(counts_fuzz counts_corpus counts_reader_fuzz.cpp)
brenica_add_replay(results_fuzz results_corpus results_reader_fuzz.cpp)

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

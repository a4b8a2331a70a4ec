# ./run, case by case; the stand-ins of the script keep each case off the network.
foreach(case
    words_are_listed
    unknown_word_is_refused
    superfluous_option_is_refused
    no_build_makes_a_cairo
    complete_machine_calls_no_apt
    missing_packages_are_installed
    user_installs_through_sudo
    failing_apt_is_explained
    missing_directfb_comes_from_debian_12
    cairo_is_built_once
    unfetchable_cairo_is_explained
    broken_try_is_replaced
    two_runs_at_once_build_one_cairo
    cache_of_somebody_else_is_refused
    blank_in_cache_is_avoided
    both_builds_are_tested
    sanitizers_alone
    failing_test_is_the_result
    unknown_target_is_refused
    cross_compilers_of_another_debian_are_refused
    target_without_root_is_refused
    every_machine_is_tested
    failing_machine_holds_up_no_other
    install_passes_the_prefix
    what_was_installed_is_removed
    demo_passes_options
    demo_opens_a_window
    packages_are_made
    release_is_the_same_bytes
    uncommitted_release_is_refused
    release_of_two_versions_is_refused
    documentation_is_made
    clean_removes_the_build)
  add_test(NAME run.${case} COMMAND ${CMAKE_CURRENT_LIST_DIR}/run_front_door.sh ${case})
  set_tests_properties(run.${case} PROPERTIES LABELS programs TIMEOUT 60)
endforeach()

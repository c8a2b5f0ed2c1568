# Tables of numbers that the games read from the folder of the programs.

set(odds_table "${CMAKE_SOURCE_DIR}/assets/tables/PkFDes.ZOV")
set(odds_beside "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/PkFDes.ZOV")
add_custom_command(OUTPUT "${odds_beside}" DEPENDS "${odds_table}" VERBATIM
  COMMAND "${CMAKE_COMMAND}" -E copy "${odds_table}" "${odds_beside}")
add_custom_target(zovin_tables ALL DEPENDS "${odds_beside}")

# Works the odds of the draw out again, which takes minutes.
if(TARGET draw_odds)
  add_custom_target(zovin_odds COMMAND draw_odds "${odds_table}" VERBATIM)
endif()

# Runs FUZZER on a copy of its seeds, so that nothing is written into the sources.
#
#   SECONDS_DEFAULT   how long, unless the environment variable CORVANE_FUZZ_SECONDS says otherwise
#   SEEDS             the committed seeds
#   DICTIONARY        words of the format
#   WORK              folder for the inputs that the run finds, and for those that break a promise
set(seconds ${SECONDS_DEFAULT})
if(DEFINED ENV{CORVANE_FUZZ_SECONDS})
  set(seconds $ENV{CORVANE_FUZZ_SECONDS})
endif()

# What earlier runs found stays in WORK and is gone on from, but the seeds are always there.
file(MAKE_DIRECTORY ${WORK}/corpus ${WORK}/broken)
file(GLOB seeds ${SEEDS}/*)
if(NOT seeds)
  message(FATAL_ERROR "No seeds in ${SEEDS}")
endif()
file(COPY ${seeds} DESTINATION ${WORK}/corpus)

execute_process(
  COMMAND ${FUZZER} -max_total_time=${seconds} -timeout=10 -rss_limit_mb=2048 -verbosity=0
    -print_final_stats=1 -dict=${DICTIONARY} -artifact_prefix=${WORK}/broken/ ${WORK}/corpus
  RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "The input that broke it is in ${WORK}/broken: give it to ${FUZZER} to see it again.")
endif()

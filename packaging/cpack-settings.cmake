# Read by CPack before it packs: the time stamp of everything in the package is the release's,
# unless the caller sets another one.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND date --utc --date=${CPACK_SELVANE_RELEASE_DATE} +%s
                    OUTPUT_VARIABLE epoch OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(ENV{SOURCE_DATE_EPOCH} ${epoch})
endif()

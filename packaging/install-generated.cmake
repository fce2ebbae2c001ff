# Runs at installing: the files that name the documents' folder, and those that Debian keeps
# compressed. gzip -n leaves name and hour out of them.
function(install_compressed from name folder)
    execute_process(COMMAND gzip -9nc ${from} OUTPUT_FILE ${generated}/${name}
                    COMMAND_ERROR_IS_FATAL ANY)
    file(INSTALL ${generated}/${name} DESTINATION ${folder})
endfunction()

# Besides the symbols, Debian's programs lose the compiler's remarks.
if(CMAKE_INSTALL_DO_STRIP)
    execute_process(COMMAND ${strip} --strip-all --remove-section=.comment --remove-section=.note
                            $ENV{DESTDIR}${program} COMMAND_ERROR_IS_FATAL ANY)
endif()

file(MAKE_DIRECTORY ${generated})
configure_file(${source}/${application_id}.desktop.in ${generated}/${application_id}.desktop @ONLY)
file(INSTALL ${generated}/${application_id}.desktop DESTINATION ${applications})

configure_file(${source}/selvane.1.in ${generated}/selvane.1 @ONLY)
install_compressed(${generated}/selvane.1 selvane.1.gz ${manual})
install_compressed(${source}/../CHANGELOG.md changelog.gz ${documentation})
install_compressed(${source}/debian/changelog changelog.Debian.gz ${documentation})

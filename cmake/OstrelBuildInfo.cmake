# Run by the build (cmake -P) before the shell compiles, every time: writes OUTPUT from INPUT with
# the shell's version (VERSION) and the commit of the source tree (SOURCE_DIR). configure_file leaves
# the file untouched while its text stays the same, so an unchanged commit compiles nothing again.
#
# The commit is git's, at a fixed length so that neither the clone's size nor a user's core.abbrev
# changes the text: two folders of one commit say the same. A tree that is not a git checkout of its
# own (a source archive, even unpacked inside another repository) says "unknown".
set(OSTREL_VERSION "${VERSION}")
set(OSTREL_BUILD_COMMIT unknown)
if(GIT_EXECUTABLE AND EXISTS "${SOURCE_DIR}/.git")
    execute_process(COMMAND "${GIT_EXECUTABLE}" -C "${SOURCE_DIR}" rev-parse --short=12 HEAD
        OUTPUT_VARIABLE commit OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET RESULT_VARIABLE status)
    if(status EQUAL 0 AND commit)
        set(OSTREL_BUILD_COMMIT "${commit}")
    endif()
endif()
configure_file("${INPUT}" "${OUTPUT}" @ONLY)

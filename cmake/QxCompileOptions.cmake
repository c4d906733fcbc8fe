# Warning and sanitizer flags shared by every target of the project.
if(QX_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
endif()

# Under libFuzzer every library under test carries the coverage instrumentation, so that the
# fuzzer sees the branches of the host and the module, not only those of the fuzz programs.
option(QX_LIBFUZZER "Build fuzz targets with libFuzzer (clang only)" OFF)
if(QX_LIBFUZZER)
    add_compile_options(-fsanitize=fuzzer-no-link)
    # RapidJSON's parser stacks start as null pointers and add to them before the first
    # allocation; clang reports that as pointer overflow on every parse (GCC's sanitizer,
    # which the tests use, does not), so the fuzz build leaves that one check out.
    add_compile_options(-fno-sanitize=pointer-overflow)
    # The conventional switch for what only a fuzzing build does: the drawing file's reader
    # takes any checksum there, so that mutated records reach the readers of their contents.
    add_compile_definitions(FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION)
    add_link_options(-fsanitize=fuzzer-no-link)
endif()

function(qx_set_compile_options target)
    target_compile_options(${target} PRIVATE -Wall -Wextra)
    if(QX_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()

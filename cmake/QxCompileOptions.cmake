# Warning and sanitizer flags shared by every target of the project.
if(QX_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
endif()

function(qx_set_compile_options target)
    target_compile_options(${target} PRIVATE -Wall -Wextra)
    if(QX_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()

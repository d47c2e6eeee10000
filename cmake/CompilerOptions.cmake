# Warning and sanitizer settings shared by every target of the project.

function(zeltnavmsg_target_options target)
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
        if(ZELTNAVMSG_WARNINGS_AS_ERRORS)
            target_compile_options(${target} PRIVATE -Werror)
        endif()
    elseif(MSVC)
        target_compile_options(${target} PRIVATE /W4 /permissive-)
        if(ZELTNAVMSG_WARNINGS_AS_ERRORS)
            target_compile_options(${target} PRIVATE /WX)
        endif()
    endif()
endfunction()

if(ZELTNAVMSG_SANITIZE)
    add_compile_options(-fsanitize=${ZELTNAVMSG_SANITIZE} -fno-omit-frame-pointer
                        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ZELTNAVMSG_SANITIZE})
endif()

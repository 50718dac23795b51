# Our own targets build with every warning as an error; third-party code
# (GoogleTest) keeps its own flags.
function(morvane_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Werror)
endfunction()

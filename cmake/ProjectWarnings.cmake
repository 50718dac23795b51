# Our own targets build with every warning as an error; third-party code
# (GoogleTest) keeps its own flags. GCC 12 reports -Wrestrict wrongly for
# `"literal" + std::string` (GCC bug 105329), so that one warning stays off.
function(morvane_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Werror -Wno-restrict)
endfunction()

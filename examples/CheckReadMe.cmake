# The README shows the example exactly as it is compiled.
file(READ ${CMAKE_CURRENT_LIST_DIR}/ReadMeExample.cpp example)
file(READ ${CMAKE_CURRENT_LIST_DIR}/../README.md read_me)
string(FIND "${read_me}" "```cpp\n${example}```" position)
if(position EQUAL -1)
    message(FATAL_ERROR "README.md does not quote examples/ReadMeExample.cpp as it is")
endif()

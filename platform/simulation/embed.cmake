# SPDX-License-Identifier: MIT
# cmake -DINPUT=file -DOUTPUT=file.cpp -DHEADER=file.h -DNAME=symbol -P embed.cmake
# Converts a file to a C++ source with its bytes as NAME and their number as NAMESize, both declared
# in HEADER.
file(READ "${INPUT}" hex HEX)
string(LENGTH "${hex}" digits)
math(EXPR size "${digits} / 2")
string(REGEX REPLACE "(................................)" "\\1\n" hex "${hex}")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
file(WRITE "${OUTPUT}"
"#include \"${HEADER}\"

const unsigned char ${NAME}[] = {
${bytes}0};
const std::size_t ${NAME}Size = ${size};
")

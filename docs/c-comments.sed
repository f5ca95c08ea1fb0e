# SPDX-License-Identifier: MIT
# Doxygen's marks for the comments of the C headers, which are plain C otherwise. The first one is
# about the file.
0,/^\/\*$/s//\/** \\file/
s,^/\*$,/**,
2,$s,^/\* \([^*]\),/** \1,
s,^\(    .*[^ ].*\)/\* ,\1/**< ,

# SPDX-License-Identifier: MIT
# Adds Doxygen's marks to the comments of the C headers, which are plain C otherwise. The first
# comment describes the file.
0,/^\/\*$/s//\/** \\file/
s,^/\*$,/**,
2,$s,^/\* \([^*]\),/** \1,
s,^\(    .*[^ ].*\)/\* ,\1/**< ,

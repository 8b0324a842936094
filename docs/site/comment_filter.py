"""The comments of a header as Doxygen reads them: those before a declaration and those behind one."""

import re
import sys

for line in open(sys.argv[1], encoding="utf-8"):
    if re.match(r"\s*// --- ", line):  # a heading above several declarations
        line = "\n"
    line = re.sub(r"^(\s*)//(?!/)", r"\1///", line)
    line = re.sub(r"^(\s*)/\*(?![*])(?!\s*---)", r"\1/**", line)
    line = re.sub(r"^(.*[;,{}]\s*)//(?!/)", r"\1///<", line)
    line = re.sub(r"ORV3CAL_API |ORV3_API |ORV3_CALL ", "", line)
    sys.stdout.write(line)

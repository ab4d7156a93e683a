# SPDX-License-Identifier: MIT
"""What cmake/Hardening.cmake asks of compiler and linker is in the finished program, and its symbols are split off."""

import re

from package import Package, judge, output

LANDING_PADS = 1000  # some ten thousand functions may be called through a pointer


def build_id(program):
    return re.search(r"Build ID: ([0-9a-f]+)", output("readelf", "-nW", program)).group(1)


def complaints(package):
    with package.unpacked() as system, package.unpacked(package.symbols) as symbols:
        program = system / "usr/bin/abissora"
        dynamic = output("readelf", "-dW", program)
        segments = output("readelf", "-lW", program)
        functions = output("readelf", "-W", "--dyn-syms", program)
        if "Position-Independent Executable" not in output("readelf", "-hW", program) + dynamic + segments:
            yield "the program lies at a place that is known beforehand (no PIE)."
        if not re.search(r"\(FLAGS\) +BIND_NOW", dynamic) or "GNU_RELRO" not in segments:
            yield "calls of libraries can be redirected (no BIND_NOW with RELRO)."
        if re.search(r"GNU_STACK.*RWE", segments):
            yield "the stack can be executed."
        if "__stack_chk_fail" not in functions:
            yield "the stack is not guarded (no -fstack-protector)."
        if not re.search(r"__\w+_chk@", functions.replace("__stack_chk_fail", "")):
            yield "calls of the C library are not guarded (no FORTIFY)."
        if re.search(r"\((RPATH|RUNPATH)\)", dynamic):
            yield "the program looks for libraries in a place of its own."
        if "X86-64" in output("readelf", "-h", program):
            if "SHSTK" not in output("readelf", "-nW", program):
                yield "the program is not marked for shadow stacks."
            if output("objdump", "-d", "--no-show-raw-insn", program).count("endbr64") < LANDING_PADS:
                yield "functions have no landing pads (no -fcf-protection)."
        if ".debug_info" in output("readelf", "-SW", program):
            yield "the symbols for debuggers were not split off."
        identity = build_id(program)
        if not (symbols / f"usr/lib/debug/.build-id/{identity[:2]}/{identity[2:]}.debug").exists():
            yield "the package of symbols belongs to another program."
        if b"/build/" in program.read_bytes() or str(package.source).encode() in program.read_bytes():
            yield "the program names the folder in which it was built."


judge(complaints(Package()))

"""Reads a macOS program with LLVM's tools, as far as the tests need it."""

import re

from product import output_of


def architectures(program):
    return sorted(output_of("llvm-lipo-19", "-archs", program).split())


def _dump(program, architecture, *options):
    return output_of("llvm-objdump-19", "--macho", f"--arch={architecture}", *options, program)


def platform_and_minimum(program, architecture):
    """The platform that the program was built for, and its oldest version: ("macos", "11.0")."""
    headers = _dump(program, architecture, "--private-headers")
    return (re.search(r"^\s*platform (\S+)$", headers, re.MULTILINE)[1],
            re.search(r"^\s*minos (\S+)$", headers, re.MULTILINE)[1])


def libraries(program, architecture):
    """The libraries and frameworks that the system loads with the program, by their last names."""
    lines = _dump(program, architecture, "--dylibs-used").splitlines()[1:]
    return sorted(re.match(r"\s+(?:.*/)?(\S+) \(", line)[1] for line in lines)


def literals(program, architecture):
    """The string literals in the code."""
    lines = _dump(program, architecture, "--section=__TEXT,__cstring").splitlines()
    return {line.partition("  ")[2] for line in lines if re.match(r"[0-9a-f]{16}  ", line)}


def undefined_symbols(program, architecture):
    """Symbol → where it comes from ("from Foundation"), or None if the program does not say."""
    lines = output_of("llvm-nm-19", "-m", "-u", f"--arch={architecture}", program).splitlines()
    matches = (re.search(r"external (\S+)(?: \((from \S+)\))?$", line) for line in lines)
    return {match[1]: match[2] for match in matches if match}


def bindings(program, architecture):
    """The lines that tell the loader in which library to look for a symbol. Leaves out weak symbols.
    These are C++'s, and the first one that is loaded counts everywhere."""
    lines = _dump(program, architecture, "--bind", "--lazy-bind").splitlines()
    return [line for line in lines if re.match(r"__[A-Z]", line)]


def messages(program, architecture):
    """Class → the selectors of its instances' methods, in the order of the program's own list."""
    methods, current = {}, None
    for line in _dump(program, architecture, "--objc-meta-data").splitlines():
        if listed := re.match(r"[0-9a-f]+ 0x[0-9a-f]+ _OBJC_CLASS_\$_(\S+)$", line):
            current = methods.setdefault(listed[1], [])
        elif line.startswith(("Meta Class", "Contents of")):
            current = None
        elif re.match(r"\s+baseProtocols ", line):
            current = None
        elif current is not None and (name := re.match(r"\t\t +name 0x[0-9a-f]+ (\S+)$", line)):
            current.append(name[1])
    return methods

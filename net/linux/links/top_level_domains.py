"""Prints the top-level domains that the public suffix list knows, as C++ strings in their order.

Usage: top_level_domains.py LIST

The last label of every rule counts: a domain such as "za" has rules for what lies below it, and none
of its own.
"""

import re
import sys


def ascii_form(label):
    return label if label.isascii() else "xn--" + label.encode("punycode").decode()


def main(path):
    with open(path, encoding="utf-8") as file:
        text = file.read()
    official = re.search("===BEGIN ICANN DOMAINS===\n(.*)// ===END ICANN DOMAINS===", text, re.S)[1]
    rules = [line.split()[0] for line in official.splitlines() if line and not line.startswith("//")]
    for name in sorted({ascii_form(rule.rpartition(".")[2]) for rule in rules}):
        print(f'"{name}",')


main(sys.argv[1])

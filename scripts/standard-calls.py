#!/usr/bin/env python3
"""Checks that each function of a 32-bit library cleans exactly its arguments from the stack:
    scripts/standard-calls.py LIBRARY
LIBRARY is Zurolink.dll for 32-bit Windows or libZurolink.so for 32-bit Linux. Nothing of it is run: every
return that a function can reach has to be "ret" with the bytes of its arguments. A caller whose stack is
off by a word goes on with the wrong one, so one wrong return is as bad as none that is right.
"""
import re
import subprocess
import sys

# How many words of 4 bytes a caller hands over; a pointer, an int and a short are one each.
ARGUMENT_WORDS = {
    "BscOpen": 2,
    "BscSetCom": 6,
    "BscSetEther": 4,
    "BscConnect": 1,
    "BscDisConnect": 1,
    "BscClose": 1,
    "BscFindFirst": 3,
    "BscFindNext": 3,
    "BscDownLoad": 2,
    "BscUpLoad": 2,
    "BscSelectJob": 2,
    "BscDeleteJob": 1,
    "BscGetVarData": 4,
    "BscPutVarData": 4,
    "ZurolinkSimulator": 0,
}


def objdump(program, *arguments):
    return subprocess.run([program, *arguments], check=True, capture_output=True, text=True).stdout


def windows_exports(tables):
    """Where each exported function begins, from the tables of a library for Windows."""
    base = int(re.search(r"^ImageBase\s+([0-9a-f]+)", tables, re.M).group(1), 16)
    places = re.findall(r"\[ *(\d+)\] \+base\[ *\d+\] ([0-9a-f]+) Export RVA", tables)
    places = {int(index): base + int(place, 16) for index, place in places}
    # Older programs print the index alone, newer ones ordinal and hint too; the order is the same.
    names = tables.split("[Ordinal/Name Pointer]", 2)[-1].split("\n\n")[0]
    names = re.findall(r"^\t\[ *(\d+)\](?: \+base\[ *\d+\] *[0-9a-f]+)? (\w+)$", names, re.M)
    return {name: places[int(index)] for index, name in names}


def linux_exports(symbols):
    found = re.findall(r"^([0-9a-f]+) \S* +\S*F \.text\s+[0-9a-f]+ .*?(\w+)$", symbols, re.M)
    return {name: int(place, 16) for place, name in found}


def read_code(listing):
    """Address -> (operation, operand), and the addresses at which functions begin."""
    code, starts = {}, set()
    for line in listing.splitlines():
        if label := re.match(r"([0-9a-f]+) <(?!\.text).*>:$", line):
            starts.add(int(label.group(1), 16))
        elif instruction := re.match(r" *([0-9a-f]+):\t(?:(?:rep|repz|bnd|notrack) )*(\S+) *(.*)$", line):
            code[int(instruction.group(1), 16)] = (instruction.group(2), instruction.group(3))
    for operation, operand in code.values():
        if operation == "call" and (target := target_of(operand)):
            starts.add(target)
    return code, starts


def target_of(operand):
    target = re.match(r"(?:0x)?([0-9a-f]+)(?:\s|$)", operand)
    return int(target.group(1), 16) if target else None


def returns_of(start, code, following, starts):
    """The operands of all returns of the function at `start`: those in its own stretch of code, which the
    handlers of exceptions belong to, and those that a jump out of it leads to. None for a jump that
    cannot be followed."""
    found, seen, waiting = [], set(), []
    place = start
    while place in code and code[place][0] != "nop" and (place == start or place not in starts):
        waiting.append(place)
        place = following.get(place)
    while waiting:
        place = waiting.pop()
        if place in seen or place not in code:
            continue
        seen.add(place)
        operation, operand = code[place]
        if operation.startswith("ret"):
            found.append(operand)
        elif operation.startswith("j"):
            target = target_of(operand)
            found += [None] if target is None else []
            waiting += [] if target is None else [target]
        if not operation.startswith("ret") and operation != "jmp":
            waiting.append(following.get(place))
    return found


def main():
    if len(sys.argv) != 2:
        sys.exit("Usage: scripts/standard-calls.py LIBRARY")
    library = sys.argv[1]
    with open(library, "rb") as file:
        windows = file.read(2) == b"MZ"
    program = "i686-w64-mingw32-objdump" if windows else "objdump"
    if "i386" not in objdump(program, "-f", library):
        sys.exit(f"{library} is no library for 32 bits")
    exports = windows_exports(objdump(program, "-p", library)) if windows else \
        linux_exports(objdump(program, "-T", library))
    code, starts = read_code(objdump(program, "-d", "--no-show-raw-insn", "-j", ".text", library))
    starts |= set(exports.values())
    places = sorted(code)
    following = dict(zip(places, places[1:]))

    failed = sorted(set(exports) ^ set(ARGUMENT_WORDS))
    for name in failed:
        print(f"FAILED: {name} is not both exported and known here")
    for name in sorted(set(exports) & set(ARGUMENT_WORDS)):
        wanted = f"$0x{4 * ARGUMENT_WORDS[name]:x}" if ARGUMENT_WORDS[name] else ""
        found = returns_of(exports[name], code, following, starts)
        if not found or set(found) != {wanted}:
            failed.append(name)
            shown = ", ".join("a jump to anywhere" if one is None else f"ret {one}" for one in found)
            print(f"FAILED: {name} has to end with ret {wanted}, but has: {shown or 'no return'}")
    if failed:
        sys.exit(1)
    print(f"Every return of the {len(exports)} functions of {library} cleans exactly its arguments.")


main()

#!/usr/bin/env bash
# Checks what a Windows build asks of the system and what it offers:
#   scripts/windows-tables.sh BUILD
# Programs and stand-in library may need libraries of the system only and start from Windows 7 on, and
# the library has to export its functions under their plain names, and nothing else. In 32 bits each of
# them also has to clean exactly its arguments from the stack. The program has to keep the
# system from taking a blocking call for its end.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=$1
dump=x86_64-w64-mingw32-objdump # reads the tables of both machines

system_libraries='advapi32 comctl32 comdlg32 crypt32 gdi32 kernel32 mpr msvcrt ole32 oleacc oleaut32 rpcrt4
    secur32 shell32 shlwapi user32 uxtheme version winspool.drv ws2_32'
failed=0
fail() {
    echo "FAILED: $*"
    failed=1
}

oldest_system=6.1 # Windows 7
# As in "6.1".
system_version() { "$dump" -p "$1" | sed -n 's/^M[ajin]*orSubsystemVersion[[:space:]]*//p' | paste -sd .; }
# Lower case, without ".dll".
imports() { "$dump" -p "$1" | sed -n 's/.*DLL Name: //p' | tr '[:upper:]' '[:lower:]' | sed 's/\.dll$//'; }
exports() { "$dump" -p "$1" | sed -n '/\[Ordinal\/Name Pointer\]/,/^$/s/^\t\[ *[0-9]*\]\( +base\[ *[0-9]*\] *[0-9a-f]*\)\{0,1\} \(.*\)$/\2/p' | sort; }
# The names in the definition file.
wanted() { sed -n 's/^    \([A-Za-z]*\)$/\1/p' simulator/Zurolink.def | sort; }

for file in "$build/ui/Vantrel.exe" "$build/console/vantrelctl.exe" "$build/simulator/Zurolink.dll"; do
    for library in $(imports "$file"); do
        case " $(echo $system_libraries) " in
        *" $library "*) ;;
        *) fail "$file needs $library, which is no library of every system" ;;
        esac
    done
    [ "$(system_version "$file")" = "$oldest_system" ] ||
        fail "$file is for Windows $(system_version "$file") and not for $oldest_system"
done
difference=$(diff <(wanted) <(exports "$build/simulator/Zurolink.dll")) ||
    fail "the export table of Zurolink.dll: $difference"
if "$dump" -f "$build/simulator/Zurolink.dll" | grep -q pei-i386; then
    scripts/standard-calls.py "$build/simulator/Zurolink.dll" || failed=1
fi
# A library call may block for long, and a program in the middle of a transfer must not be ended.
"$dump" -p "$build/ui/Vantrel.exe" | grep -w DisableProcessWindowsGhosting >/dev/null ||
    fail "the system will offer to end Vantrel.exe while a call of the library blocks"
[ "$failed" -eq 0 ] && echo "Import and export tables of $build are as they should be."
exit "$failed"

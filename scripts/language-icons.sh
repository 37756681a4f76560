#!/usr/bin/env bash
# Makes the pictures of the language dialog, data/*.ico, from data/language-icons/*.svg: the sizes
# that the dialog shows at 100, 150 and 200 %. Run it after a change and keep the result with the
# sources, so that a build needs no tool for it. It needs rsvg-convert and icotool.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../data"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for drawing in language-icons/*.svg; do
    language=$(basename "$drawing" .svg)
    pictures=()
    for size in 48 72 96; do
        rsvg-convert --width "$size" --height "$size" --output "$work/$size.png" "$drawing"
        pictures+=("$work/$size.png")
    done
    icotool --create --output "$language.ico" "${pictures[@]}"
done

#!/usr/bin/env bash
# Runs the scripted tour of the program and checks that it comes to its end and leaves every picture.
#     tour_test.sh TOUR SCRIPT
set -u
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
"$1" "$2" "$folder" || { echo "FAILED: the tour ended with $?"; exit 1; }
wanted=$(grep -cE '^[0-9]+ shot ' "$2")
found=$(find "$folder" -name '*.png' | wc -l)
[ "$found" -eq "$wanted" ] || { echo "FAILED: $found of $wanted pictures"; exit 1; }
cmp -s "$folder/day.png" "$folder/night.png" && { echo "FAILED: night is day"; exit 1; }
echo "All $found pictures are there."

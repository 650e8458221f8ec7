#!/bin/sh
# Packs small folders: the pack's bytes, the same again, and the refusals.
# Usage: pack_builder_test.sh PACK_BUILDER
set -eu

builder=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail()
{
    echo "$1" >&2
    exit 1
}

# Two members, by name: \moon1.jpg (hash 0x07B15A52) at 32, \z at 37.
mkdir "$work/in" "$work/in/subfolder"
printf 'moon!' >"$work/in/Moon1.JPG"
printf 'z' >"$work/in/z"
"$builder" "$work/in" "$work/out.xpf"
head -c 20 "$work/out.xpf" | od -An -v -tx1 | tr -d ' \n' >"$work/head"
[ "$(cat "$work/head")" = 4650585f02000000525ab1072000000005000000 ] || fail "wrong header: $(cat "$work/head")"
[ "$(tail -c +33 "$work/out.xpf")" = 'moon!z' ] || fail "wrong members"

cp "$work/out.xpf" "$work/first.xpf"
touch "$work/in/z"
"$builder" "$work/in" "$work/out.xpf"
cmp "$work/first.xpf" "$work/out.xpf" || fail "the same files gave another pack"

# A refusal says what is wrong, leaves the old pack in place and nothing beside it.
printf 'other' >"$work/in/MOON1.jpg"
if "$builder" "$work/in" "$work/out.xpf" 2>"$work/message"; then
    fail "packed two files that differ only in letter case"
fi
grep -q 'differ only in letter case' "$work/message" || fail "unclear message: $(cat "$work/message")"
cmp "$work/first.xpf" "$work/out.xpf" || fail "a refusal changed the pack"
[ ! -e "$work/out.xpf.tmp" ] || fail "a refusal left a temporary file"

if "$builder" "$work/missing" "$work/out.xpf" 2>/dev/null; then
    fail "packed a folder that does not exist"
fi
if "$builder" 2>"$work/message"; then
    fail "accepted no arguments"
fi
grep -q '^Usage:' "$work/message" || fail "no usage text"

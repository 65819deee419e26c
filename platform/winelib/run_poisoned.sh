#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Starts a program with the C library's debugging allocator; run_wine.sh calls it in place of Wine. Unlike the sanitizers it is at
# work in every library of the process, OSG's, CEGUI's, Mesa's and Wine's native parts among them.
#   run_poisoned.sh PROGRAM.exe.so [ARGUMENTS...]
set -euo pipefail
# Fresh memory is filled with the complement of this byte, and freed memory with the byte itself: what is read before it is written,
# or after it was freed, is neither 0 nor what it was.
export MALLOC_PERTURB_=165
# A byte behind each block is looked at when it is freed, and so is whether the block is one: a write beyond it, and a second free,
# end the process.
export GLIBC_TUNABLES=glibc.malloc.check=3${GLIBC_TUNABLES:+:$GLIBC_TUNABLES}
export LD_PRELOAD=libc_malloc_debug.so.0${LD_PRELOAD:+:$LD_PRELOAD}
# The suites that look for it see that it is at work.
export NX_POISONED=$MALLOC_PERTURB_
exec wine "$@"

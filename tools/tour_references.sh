#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compares the tour of the city host with its reference pictures, or makes them anew. Builds the host first.
#   tour_references.sh [--remake] [PART]
#   PART   chrome, bars, objects, documents or looks; all of them without it
# The pictures go to out/tour_references, and with them what differs. Look at new references before you keep them.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
"$root/platform/winelib/setup.sh" CityHost
exec "$root/tests/tour/check_tour.sh" "$root/build" "$root/out/tour_references" "$@"

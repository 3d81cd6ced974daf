#!/bin/bash
# Prints the folder, outside the source tree, that keeps the libraries built for Windows:
# MORTANE_WINDOWS_CACHE, or one in the user's cache folder.
echo "${MORTANE_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/mortane-windows}"

"""Keeps tests that start programs from running beside each other."""

import fcntl
import os


def lock_device_names():
    """The lock of tests/support/DeviceNamesLock.h: programs share the machine's device names."""
    folder = next((name for name in ("/run/lock", "/tmp")
                   if os.path.isdir(name) and os.stat(name).st_mode & 0o1777 == 0o1777), "/tmp")
    lock = open(os.path.join(folder, "mortane-MortaneTests-DeviceNames.lock"), "a+")
    fcntl.lockf(lock, fcntl.LOCK_EX)
    return lock

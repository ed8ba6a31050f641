#pragma once

// Always true; logs "(64-bit) Mac OS X 10.5 or later" on every call.
bool RunningOn105OrLater();
// Whether the running system's version (the kernel's, from uname) is 10.7 or
// later; worked out once per process and logged then.
bool isBiggerThan106();

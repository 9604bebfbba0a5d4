// SPDX-License-Identifier: GPL-3.0-or-later
/// Writes its second argument into the file that its first one names, as the program does; with a
/// third one the old file is kept aside. For file_faults_test.py.

#include <cstdlib>
#include <iostream>

#include "DesktopDisk.h"
#include "Error.h"
#include "Files.h"

int main(int count, char** arguments) {
  tracewell::DesktopDisk disk;
  tracewell::useDisk(&disk);
  try {
    if (count > 3) tracewell::keepAside(arguments[1]);
    tracewell::writeWholeFile(arguments[1], arguments[2]);
  } catch (const tracewell::Error& error) {
    std::cerr << error.what() << "\n";
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}

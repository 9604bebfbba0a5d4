// SPDX-License-Identifier: GPL-3.0-or-later
/// Writes its second argument into the file that its first one names, as the program does; with a
/// third one, "keep", the old file is kept aside, or with others, these are files of the same set.
/// For file_faults_test.py.

#include <cstdlib>
#include <iostream>

#include "DesktopDisk.h"
#include "Error.h"
#include "Files.h"

int main(int count, char** arguments) {
  tracewell::DesktopDisk disk;
  tracewell::useDisk(&disk);
  try {
    const std::filesystem::path file = arguments[1];
    const std::string_view bytes = arguments[2];
    if (count > 4) {
      tracewell::writeWholeFiles({{file, bytes}, {arguments[3], bytes}, {arguments[4], bytes}});
    } else {
      if (count > 3) tracewell::keepAside(file);
      tracewell::writeWholeFile(file, bytes);
    }
  } catch (const tracewell::Error& error) {
    std::cerr << error.what() << "\n";
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}

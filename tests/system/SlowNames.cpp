// SPDX-License-Identifier: GPL-3.0-or-later
#include <netdb.h>
#include <unistd.h>

/// In front of the system's own: a name server that is away.
extern "C" int getaddrinfo(const char* /*name*/, const char* /*service*/,
                           const struct addrinfo* /*hints*/, struct addrinfo** /*found*/) {
  sleep(20);
  return EAI_AGAIN;
}

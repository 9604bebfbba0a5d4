// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tracewell {

/// Whether a reply is the one to its query.
enum class Sureness {
  sure,
  /// It was returned while an earlier one was missing, and may be that one, come late.
  notYet,
  /// It may be that to another query, and nothing can tell any more.
  never
};

}  // namespace tracewell

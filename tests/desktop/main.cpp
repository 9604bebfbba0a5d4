// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QTranslator>

#include "Places.h"
#include "ShownText.h"
#include "Theme.h"

#ifdef TRACEWELL_SANITIZED
/// After 30 seconds the font library reads its configuration anew, and loses parts of the one
/// before.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\n";
}
#endif

namespace tracewell {
namespace {

/// There is a translation of whatever is said on the panel.
class KnownTexts : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* text, const char*, int) const override {
    const bool isOfPanel = std::string_view(context) == "Panel";
    EXPECT_TRUE(!isOfPanel || !french_.translate(context, text).isEmpty()) << text;
    return {};
  }

 private:
  QTranslator french_;
  const bool isThere_ = french_.load(QStringLiteral(":/languages/tracewell_fr.qm"));
};

}  // namespace
}  // namespace tracewell

int main(int argumentCount, char** arguments) {
  qputenv("FONTCONFIG_FILE", QByteArray(tracewell::scriptFolder) + "/../fonts.conf");
  QApplication application(argumentCount, arguments);
  tracewell::applyTheme(application);
  tracewell::keepLabelsPlain(application);
  tracewell::KnownTexts texts;
  QApplication::installTranslator(&texts);
  testing::InitGoogleTest(&argumentCount, arguments);
  return RUN_ALL_TESTS();
}

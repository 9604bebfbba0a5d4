// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmAbout.h"

namespace tracewell {

frmAbout::frmAbout(frmDSO& main) : Window("frmAbout", "About Tracewell", main.services()) {
  formLoad = [this] { Form_Load(); };
  cmdOK.click = [this] { hide(); };
}

void frmAbout::mnbAbout_Click() {
  caption = services().words.say("About Tracewell");
  cmdOK.caption = services().words.say("OK");
  showModal();
}

void frmAbout::Form_Load() {
  try {
    pictureAbout.image = services().pictures.load(services().programFolder / "about.jpg");
  } catch (const Error&) {
    // The version can be read without the picture.
  }
}

}  // namespace tracewell

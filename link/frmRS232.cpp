// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmRS232.h"

#include "Numbers.h"
#include "PortNotice.h"

namespace tracewell {
namespace {

enum Setting : int { baudRate, dataBits, stopBits, parity, portNumber, settingCount };

constexpr int cell(int setting) {
  return SetupTable::firstValue + setting;
}

std::int16_t dataBitsCode(const std::string& text) {
  return text == "7" ? 7 : 8;
}

std::int16_t stopBitsCode(const std::string& text) {
  return text == "1" ? 0 : 2;
}

std::int16_t parityCode(const std::string& text) {
  if (text == "None") return 0;
  return text == "Odd" ? 3 : 1;
}

}  // namespace

frmRS232::frmRS232(frmDSO& main) : Window("frmRS232", "RS-232", main.services()), main_(main) {
  cbRS232(baudRate).items = {"1200", "2400", "4800", "9600", "14400", "19200"};
  cbRS232(dataBits).items = {"7", "8"};
  cbRS232(stopBits).items = {"1", "2"};
  cbRS232(parity).items = {"None", "Odd", "Even"};
  cbRS232(portNumber).click = [this] { showDevice(); };
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { cmdCancel_Click(); };
}

void frmRS232::mnbRS232_Click() {
  listPorts();
  for (int i = 0; i < settingCount; ++i)
    cbRS232(i).text = main_.gridMeasure.text(SetupTable::link, cell(i));
  showDevice();
  showModal();
}

/// Anew at each opening: ports come and go with their cables.
void frmRS232::listPorts() {
  std::vector<std::string> numbers;
  for (const PortList::Entry& port : services().ports.ports())
    numbers.push_back(std::to_string(port.number));
  cbRS232(portNumber).items = numbers;
}

/// No device for a text that is no port number; OK is where that is an error.
void frmRS232::showDevice() {
  try {
    lblDevice.caption = services().ports.deviceOf(toInt16(cbRS232(portNumber).text()));
  } catch (const Error&) {
    lblDevice.caption = "";
  }
}

void frmRS232::cmdOK_Click() {
  LineSettings& settings = services().port.settings;
  main_.BaudRate = toInt16(cbRS232(baudRate).text());
  settings.baudRate = main_.BaudRate;
  settings.portNumber = toInt16(cbRS232(portNumber).text());
  settings.dataBits = dataBitsCode(cbRS232(dataBits).text());
  settings.stopBits = stopBitsCode(cbRS232(stopBits).text());
  settings.parity = parityCode(cbRS232(parity).text());
  for (int i = 0; i < settingCount; ++i)
    main_.gridMeasure.setText(SetupTable::link, cell(i), cbRS232(i).text());
  showPort(main_, settings.portNumber);
  hide();
  main_.refresh();
}

void frmRS232::cmdCancel_Click() {
  hide();
  main_.refresh();
}

}  // namespace tracewell

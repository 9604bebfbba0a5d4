// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmRS232.h"

#include "LinkSettings.h"
#include "Numbers.h"
#include "PortNotice.h"

namespace tracewell {

frmRS232::frmRS232(frmDSO& main) : Window("frmRS232", "RS-232", main.services()), main_(main) {
  cbRS232(baudRateValue).items = {"1200", "2400", "4800", "9600", "14400", "19200"};
  cbRS232(dataBitsValue).items = {"7", "8"};
  cbRS232(stopBitsValue).items = {"1", "2"};
  cbRS232(parityValue).items = {"None", "Odd", "Even"};
  cbRS232(portValue).click = [this] { showDevice(cbRS232(portValue).text()); };
  cbRS232(portValue).edited = [this](const std::string& typed) { showDevice(typed); };
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { cmdCancel_Click(); };
}

void frmRS232::mnbRS232_Click() {
  listPorts();
  for (int i = 0; i < linkValues; ++i)
    cbRS232(i).text = main_.gridMeasure.text(SetupTable::link, SetupTable::columnOf(i));
  showDevice(cbRS232(portValue).text());
  showModal();
}

/// Listed again at each opening: ports come and go with their cables.
void frmRS232::listPorts() {
  std::vector<std::string> numbers;
  for (const PortList::Entry& port : services().ports.ports())
    numbers.push_back(std::to_string(port.number));
  cbRS232(portValue).items = numbers;
}

/// A text that is no port number becomes an error only at OK.
void frmRS232::showDevice(const std::string& typed) {
  try {
    lblDevice.caption = deviceAndState(toInt16(typed));
  } catch (const Error&) {
    lblDevice.caption = typed.empty() ? "" : services().words.say("There is no such port");
  }
}

std::string frmRS232::deviceAndState(std::int16_t number) const {
  PortList& ports = services().ports;
  std::string device = ports.deviceOf(number);
  if (device.empty()) return services().words.say("There is no such port");
  switch (ports.stateOf(number)) {
    case PortList::State::absent:
      return services().words.say("Not present: %1", {device});
    case PortList::State::inUseElsewhere:
      return services().words.say("In use by another program: %1", {device});
    default:
      return device;
  }
}

void frmRS232::cmdOK_Click() {
  LineSettings& settings = services().port.settings;
  main_.state.BaudRate = toInt16(cbRS232(baudRateValue).text());
  settings.baudRate = main_.state.BaudRate;
  settings.portNumber = toInt16(cbRS232(portValue).text());
  settings.dataBits = dataBitsCode(cbRS232(dataBitsValue).text());
  settings.stopBits = stopBitsCode(cbRS232(stopBitsValue).text());
  settings.parity = parityCode(cbRS232(parityValue).text());
  for (int i = 0; i < linkValues; ++i)
    main_.gridMeasure.setText(SetupTable::link, SetupTable::columnOf(i), cbRS232(i).text());
  showPort(main_, settings.portNumber);
  for (const auto topic :
       {StatusLine::stoppedByError, StatusLine::missedBySeries, StatusLine::missedByOne})
    main_.status.withdraw(topic);
  showDifferingLink(main_);
  main_.marksDue.raise();
  hide();
  main_.refresh();
}

void frmRS232::cmdCancel_Click() {
  hide();
  main_.refresh();
}

}  // namespace tracewell

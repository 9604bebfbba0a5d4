// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandExchange.h"

#include <optional>

#include "Numbers.h"

namespace tracewell {
namespace {

bool isQuery(const std::string& command) {
  return command.ends_with('?');
}

/// The instrument also answers a query in the middle of a line; that reply is not read.
SerialPort::Reply replyTo(const std::string& command) {
  return command.find('?') == std::string::npos ? SerialPort::Reply::none
                                                : SerialPort::Reply::unread;
}

/// The value in a reply line.
std::string replyValue(const std::string& line) {
  std::string value(trimBlanks(line));
  if (value.empty()) throw invalidCallError();
  value.pop_back();
  return value;
}

}  // namespace

CommandExchange::CommandExchange(frmDSO& main, ErrorLog& errorLog)
    : main_(main), errorLog_(errorLog), inquiries_(main) {
  autoset_.timer = [this] { endAutosetsInTime(); };
}

std::string CommandExchange::SendDSOCmd(const std::string& command) {
  std::string reply = transfer(command);
  if (isQuery(command))
    noteAnswered(command, reply);
  else if (wasSent_)
    main_.known.sent(command);
  else
    noteFailed(command);
  return reply;
}

/// A line that ends in a query may hold commands too. Its reply proves that it was sent.
std::string CommandExchange::sendTyped(const std::string& line) {
  std::string reply = transfer(line);
  if (wasSent_)
    main_.known.typed(line);
  else
    noteFailed(line);
  if (begunOn_ && beginsAutoset(line)) beginAutoset();
  if (isQuery(line)) noteAnswered(line, reply);
  return reply;
}

/// A second one behind the same port begins the time anew.
void CommandExchange::beginAutoset() {
  const std::int16_t port = main_.known.presentLine().portNumber;
  if (autosets_.contains(port)) main_.known.upsetIsOver(port);
  main_.known.upset();
  autosets_[port] = main_.services().clock.milliseconds() + autosetDuration;
  autoset_.enabled = true;
}

/// Before each query, too, for a timer does not tick while one waits: what is asked behind the time
/// is told behind it.
void CommandExchange::endAutosetsInTime() {
  const std::int64_t now = main_.services().clock.milliseconds();
  for (auto next = autosets_.begin(); next != autosets_.end();) {
    const auto [port, until] = *next;
    if (now < until) {
      ++next;
      continue;
    }
    next = autosets_.erase(next);
    main_.known.upsetIsOver(port);
  }
  autoset_.enabled = !autosets_.empty();
}

std::string CommandExchange::transfer(const std::string& command) {
  begunOn_.reset();
  return isQuery(command) ? ask(command) : send(command, repeatLimit);
}

/// A line that never left the program changes nothing, but the panel no longer shows what is known.
void CommandExchange::noteFailed(const std::string& line) {
  if (begunOn_)
    main_.known.notSent(line, *begunOn_);
  else
    main_.marksDue.raise();
}

void CommandExchange::noteAnswered(const std::string& query, const std::string& reply) {
  if (reply.empty()) return main_.known.notAnswered(query);
  main_.known.answered(query, reply, main_.services().port.lastReply());
}

std::string CommandExchange::ask(const std::string& query) {
  std::optional<Inquiry> alone;
  if (inquiries_.current() == nullptr) alone.emplace(inquiries_, query);
  return send(query, repeatLimit);
}

std::string CommandExchange::send(const std::string& command, int repeatsLeft) {
  try {
    std::string reply = exchange(command);
    wasSent_ = true;
    inquiries_.noteFailure("");
    noteAnswer(command, true);
    return reply;
  } catch (const Error& error) {
    wasSent_ = false;
    inquiries_.noteFailure(error.number() == portReadTimeOut ? "" : error.description());
    if (error.number() == portReadTimeOut)
      main_.LinkOK = false;
    else if (isQuery(command) && repeatsLeft > 0)
      send(command, repeatsLeft - 1);
    else
      errorLog_.ErrLog(error, "SendDSOCmd : ");
    // Even if the repeated query had a reply, which is not used.
    noteAnswer(command, false);
    return "";
  }
}

void CommandExchange::noteAnswer(const std::string& command, bool isAnswered) {
  if (inquiries_.current() != nullptr && isQuery(command)) inquiries_.current()->note(isAnswered);
}

std::string CommandExchange::exchange(const std::string& command) {
  prepare();
  std::string reply;
  if (isQuery(command))
    reply = query(command);
  else
    main_.services().port.command(command + "\r\n", replyTo(command));
  InRemote = true;
  main_.LinkOK = true;
  main_.status.withdraw(StatusLine::linkLost);
  return reply;
}

void CommandExchange::prepare() {
  endAutosetsInTime();
  main_.services().port.prepare();
  begunOn_ = main_.known.presentLine();
}

std::string CommandExchange::query(const std::string& command) {
  // Until its reply arrives, the line may have been sent or not.
  main_.known.notSent(command, *begunOn_);
  return replyValue(main_.services().port.query(command + "\r\n", readTimeOut));
}

void CommandExchange::LoadSetup() {
  if (!InRemote) return;
  begunOn_.reset();
  try {
    prepare();
    main_.services().port.command(":SYST:UNL\r\n", SerialPort::Reply::none);
    InRemote = false;
    main_.known.sent(":SYST:UNL");
  } catch (const Error& error) {
    noteFailed(":SYST:UNL");
    errorLog_.ErrLog(error, "LoadSetup : ");
  }
}

}  // namespace tracewell

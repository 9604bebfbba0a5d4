// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowsSerialDevice.h"

#include <windows.h>

#include <algorithm>
#include <utility>

namespace tracewell {

/// A reading or writing that the system carries out by itself. Its event says when that is over.
struct WindowsSerialDevice::Transfer : OVERLAPPED {
  Transfer() : OVERLAPPED{} { hEvent = ::CreateEventW(nullptr, TRUE, FALSE, nullptr); }
  ~Transfer() { ::CloseHandle(hEvent); }
  Transfer(const Transfer&) = delete;
};

namespace {

/// Milliseconds, and such for each byte. A line that takes longer to send is stuck.
constexpr DWORD longestWriting = 2000;
constexpr DWORD longestByte = 20;
constexpr DWORD queue = 4096;

BYTE parityOf(std::int16_t code) {
  switch (code) {
    case 0:
      return NOPARITY;
    case 3:
      return ODDPARITY;
    default:
      return EVENPARITY;
  }
}

/// What is said of DTR and RTS stays as it is, unless the line itself would move them.
void set(DCB& line, const LineSettings& settings) {
  line.BaudRate = static_cast<DWORD>(settings.baudRate);
  line.ByteSize = settings.dataBits == 7 ? 7 : 8;
  line.StopBits = settings.stopBits == 0 ? ONESTOPBIT : TWOSTOPBITS;
  line.Parity = parityOf(settings.parity);
  line.fParity = line.Parity != NOPARITY;
  line.fBinary = TRUE;
  line.fOutxCtsFlow = FALSE;
  line.fOutxDsrFlow = FALSE;
  line.fDsrSensitivity = FALSE;
  line.fOutX = FALSE;
  line.fInX = FALSE;
  line.fNull = FALSE;
  line.fErrorChar = FALSE;
  // Else one bad byte would stop everything until it is cleared.
  line.fAbortOnError = FALSE;
  if (line.fDtrControl == DTR_CONTROL_HANDSHAKE) line.fDtrControl = DTR_CONTROL_ENABLE;
  if (line.fRtsControl == RTS_CONTROL_HANDSHAKE || line.fRtsControl == RTS_CONTROL_TOGGLE)
    line.fRtsControl = RTS_CONTROL_ENABLE;
}

/// A reading ends when it has as many bytes as were asked for.
COMMTIMEOUTS timeOuts() {
  return {0, 0, 0, longestByte, longestWriting};
}

bool isTaken(DWORD error) {
  return error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION;
}

}  // namespace

WindowsSerialDevice::WindowsSerialDevice()
    : port_(INVALID_HANDLE_VALUE),
      reading_(std::make_unique<Transfer>()),
      writing_(std::make_unique<Transfer>()) {}

WindowsSerialDevice::~WindowsSerialDevice() {
  WindowsSerialDevice::close();
}

bool WindowsSerialDevice::openPort(const QString& name, const LineSettings& settings) {
  // A number above nine is known by the name of the device alone.
  const std::wstring path = LR"(\\.\)" + name.toStdWString();
  port_ = ::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                        FILE_FLAG_OVERLAPPED, nullptr);
  if (port_ == INVALID_HANDLE_VALUE || !configure(settings)) {
    const DWORD error = ::GetLastError();
    setErrorString(isTaken(error) ? QStringLiteral("in use by another program")
                                  : qt_error_string(static_cast<int>(error)));
    close();
    return false;
  }
  arrival_ = std::make_unique<QWinEventNotifier>(reading_->hEvent);
  QObject::connect(arrival_.get(), &QWinEventNotifier::activated, this, [this] {
    if (isReading_ && isReadingOver(0) && endReading()) emit readyRead();
  });
  QIODevice::open(ReadWrite | Unbuffered);
  beginReading();
  return !hasFailed_;
}

bool WindowsSerialDevice::configure(const LineSettings& settings) {
  DCB line{};
  line.DCBlength = sizeof line;
  if (::GetCommState(port_, &line) == 0) return false;
  set(line, settings);
  COMMTIMEOUTS limits = timeOuts();
  if (::SetCommState(port_, &line) == 0 || ::SetCommTimeouts(port_, &limits) == 0) return false;
  // A driver may keep its own size.
  ::SetupComm(port_, queue, queue);
  return ::PurgeComm(port_, PURGE_RXCLEAR | PURGE_TXCLEAR) != 0;
}

void WindowsSerialDevice::close() {
  failed = nullptr;
  arrival_.reset();
  endWriting();
  if (isReading_) {
    DWORD ignored = 0;
    ::CancelIoEx(port_, reading_.get());
    ::GetOverlappedResult(port_, reading_.get(), &ignored, TRUE);
    isReading_ = false;
  }
  if (port_ != INVALID_HANDLE_VALUE) ::CloseHandle(std::exchange(port_, INVALID_HANDLE_VALUE));
  if (isOpen()) QIODevice::close();
}

void WindowsSerialDevice::setFetching(bool isFetching) {
  isFetching_ = isFetching;
  if (isFetching) beginReading();
}

void WindowsSerialDevice::beginReading() {
  if (isReading_ || !isFetching_ || hasFailed_ || port_ == INVALID_HANDLE_VALUE) return;
  isReading_ = true;
  ::ResetEvent(reading_->hEvent);
  // Its first byte ends it. Not every driver knows a reading that ends with any number of them.
  if (::ReadFile(port_, buffer_.data(), 1, nullptr, reading_.get()) != 0) return;
  const DWORD error = ::GetLastError();
  if (error == ERROR_IO_PENDING) return;
  isReading_ = false;
  failWith(error);
}

bool WindowsSerialDevice::isReadingOver(int milliseconds) const {
  const DWORD limit = milliseconds < 0 ? INFINITE : static_cast<DWORD>(milliseconds);
  return ::WaitForSingleObject(reading_->hEvent, limit) == WAIT_OBJECT_0;
}

bool WindowsSerialDevice::endReading() {
  isReading_ = false;
  if (!takeRead() || !takeQueue()) return false;
  beginReading();
  return true;
}

bool WindowsSerialDevice::takeRead() {
  DWORD count = 0;
  const bool isDone = ::GetOverlappedResult(port_, reading_.get(), &count, TRUE) != 0;
  if (isDone)
    arrived_.append(buffer_.data(), static_cast<qsizetype>(count));
  else
    failWith(::GetLastError());
  return isDone;
}

/// What is in the system's queue is had at once.
bool WindowsSerialDevice::takeQueue() {
  DWORD errors = 0;
  COMSTAT state{};
  while (::ClearCommError(port_, &errors, &state) != 0 && state.cbInQue > 0) {
    const DWORD count = std::min<DWORD>(state.cbInQue, static_cast<DWORD>(buffer_.size()));
    ::ResetEvent(reading_->hEvent);
    if (::ReadFile(port_, buffer_.data(), count, nullptr, reading_.get()) == 0 &&
        ::GetLastError() != ERROR_IO_PENDING) {
      failWith(::GetLastError());
      return false;
    }
    if (!takeRead()) return false;
  }
  return true;
}

bool WindowsSerialDevice::waitForReadyRead(int milliseconds) {
  beginReading();
  bool hasArrived = false;
  for (int limit = milliseconds; isReading_ && isReadingOver(limit); limit = 0)
    hasArrived = endReading() || hasArrived;
  return hasArrived;
}

qint64 WindowsSerialDevice::readData(char* data, qint64 size) {
  const qsizetype count = std::min<qsizetype>(size, arrived_.size());
  std::copy_n(arrived_.constData(), count, data);
  arrived_.remove(0, count);
  return count;
}

/// Returns while the system still sends, and waits for what was sent before.
qint64 WindowsSerialDevice::writeData(const char* data, qint64 size) {
  if (!endWriting()) return -1;
  sending_ = QByteArray(data, size);
  ::ResetEvent(writing_->hEvent);
  const bool isDone = ::WriteFile(port_, sending_.constData(), static_cast<DWORD>(size), nullptr,
                                  writing_.get()) != 0;
  const DWORD error = isDone ? ERROR_SUCCESS : ::GetLastError();
  isWriting_ = isDone || error == ERROR_IO_PENDING;
  if (!isWriting_) failWith(error);
  return isWriting_ ? size : -1;
}

bool WindowsSerialDevice::endWriting() {
  if (!std::exchange(isWriting_, false)) return true;
  DWORD count = 0;
  if (::GetOverlappedResult(port_, writing_.get(), &count, TRUE) == 0)
    failWith(::GetLastError());
  else if (count < static_cast<DWORD>(sending_.size()))
    failWith(ERROR_WRITE_FAULT);
  return !hasFailed_;
}

void WindowsSerialDevice::failWith(unsigned long error) {
  setErrorString(qt_error_string(static_cast<int>(error)));
  if (!std::exchange(hasFailed_, true) && failed) failed();
}

}  // namespace tracewell

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QDir>
#include <QString>
#include <filesystem>
#include <string>

#include "Colour.h"

/// Converts between the program's texts (UTF-8 bytes) and colours and Qt's. Texts to be shown go
/// through ShownText.h.
namespace tracewell {

inline QString toQt(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string fromQt(const QString& text) {
  return text.toStdString();
}

/// Qt separates by "/" on every system.
inline QString toQt(const std::filesystem::path& path) {
  const std::u8string text = path.generic_u8string();
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::filesystem::path toPath(const QString& text) {
  const QByteArray bytes = QDir::toNativeSeparators(text).toUtf8();
  return std::u8string(bytes.begin(), bytes.end());
}

inline QColor toQt(const Colour& colour) {
  return {colour.red, colour.green, colour.blue};
}

inline Colour fromQt(const QColor& colour) {
  return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
          static_cast<std::uint8_t>(colour.blue())};
}

/// The colour laid over the ground with the opacity `share`, 0 to 1.
inline QColor mixed(const QColor& colour, const QColor& ground, float share) {
  const auto mix = [share](float one, float other) { return share * one + (1 - share) * other; };
  return QColor::fromRgbF(mix(colour.redF(), ground.redF()), mix(colour.greenF(), ground.greenF()),
                          mix(colour.blueF(), ground.blueF()));
}

}  // namespace tracewell

#pragma once

#include <QStringView>

#include <compare>

namespace brisklet {

/// Compares two versions part by part: numbers by their value, words by the alphabet. A word where
/// the other version ends marks something that comes before ("1.0b" < "1.0"), a number something
/// that comes after ("1.0" < "1.0.1"); other signs only separate.
std::strong_ordering compareVersions(QStringView left, QStringView right);

} // namespace brisklet

// The printable worksheets, one function per activity. Each returns a
// whole placeable metafile for the given year or unit label ("Year 2",
// "Unit 1", ...), with exercises drawn from seed; on failure it returns
// nothing and says why in error.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

QByteArray halvesWorksheet(const QString &yearLabel, std::uint32_t seed, QString *error);
QByteArray mixedNumbersWorksheet(const QString &yearLabel, std::uint32_t seed, QString *error);
QByteArray orderingWorksheet(const QString &yearLabel, std::uint32_t seed, QString *error);

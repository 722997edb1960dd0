#pragma once
// The names of the two settings files.
#include <QString>

namespace SettingsNames {
inline const QString kEdition = QStringLiteral("primary.inf");
inline const QString kSound = QStringLiteral("sound.inf");
} // namespace SettingsNames

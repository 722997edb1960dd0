#pragma once
// Who makes the program, as the screens name them.
#include <QString>

namespace Publisher {

inline const QString kName = QStringLiteral("Partitude Learning");
// The publisher's web site, opened from the year menu. The .example domain
// is reserved: replace it with the real address before a release.
inline const QString kWebAddress = QStringLiteral("https://www.partitude.example/");

} // namespace Publisher

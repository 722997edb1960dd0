// wmf/*.wmf: the six worksheets the activities print, one for each edition
// ("Year" labels in the primary edition, "Unit" labels in the secondary).
#include "worksheets.h"

#include "canvas.h"
#include "drawing.h"

void drawWorksheets(AssetOutput &out)
{
    const struct
    {
        const char *file;
        QByteArray (*draw)(const QString &, std::uint32_t, QString *);
        const char *label;
        std::uint32_t seed;
    } sheets[] = {
        {"wmf/y2print1.wmf", halvesWorksheet, "Year 2", 2201},
        {"wmf/u1print1.wmf", halvesWorksheet, "Unit 1", 1102},
        {"wmf/y5print4.wmf", mixedNumbersWorksheet, "Year 5", 5504},
        {"wmf/u4print4.wmf", mixedNumbersWorksheet, "Unit 4", 4405},
        {"wmf/y6print3.wmf", orderingWorksheet, "Year 6", 6603},
        {"wmf/u5print3.wmf", orderingWorksheet, "Unit 5", 5506},
    };
    for (const auto &sheet : sheets) {
        QString error;
        const QByteArray bytes = sheet.draw(QString::fromLatin1(sheet.label), sheet.seed, &error);
        if (bytes.isEmpty()) {
            out.fail(QStringLiteral("%1: %2").arg(QLatin1String(sheet.file), error));
            return;
        }
        if (!out.saveBytes(bytes, QString::fromLatin1(sheet.file)))
            return;
    }
}

#include "printforms.h"

#include "runtime/forms.h"
#include "runtime/metafilebox.h"
#include "runtime/msgbox.h"
#include "runtime/printer.h"
#include "runtime/twips.h"
#include "shell/module1.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPushButton>

namespace Worksheets {

const DesignedSheet kHalves{"y2fracprint1", "wmf\\y2print1.wmf", "wmf\\u1print1.wmf"};
const DesignedSheet kMixedNumbers{"y5fracprint4", "wmf\\y5print4.wmf", "wmf\\u4print4.wmf"};
const DesignedSheet kOrdering{"y6fracprint3", "wmf\\y6print3.wmf", "wmf\\u5print3.wmf"};

bool printOrTell(const std::function<void()>& print)
{
    try {
        print();
        return true;
    } catch (const PrintCancelled&) {
        MsgBox::show(QCoreApplication::translate("Worksheets", "Printing has been cancelled."));
    } catch (const PrinterError&) {
        MsgBox::show(QCoreApplication::translate("Worksheets", "There was a problem printing to your printer."));
    }
    return false;
}

bool askAndPrint(const QString& printForm)
{
    if (MsgBox::show(QCoreApplication::translate("Worksheets", "Do you really want to print?"), MsgBox::Buttons::YesNo,
                     Module1::yearlabel)
        != MsgBox::Answer::Yes)
        return false;
    auto* form = qobject_cast<WorksheetForm*>(Forms::load(printForm));
    const bool printed = form && form->printWorksheet();
    Forms::unload(printForm);
    return printed;
}

} // namespace Worksheets

namespace {
constexpr int kWidth = 6600;
constexpr int kHeight = 9000;
constexpr int kInside = kWidth - Form::kBorderWidthTwips;
} // namespace

WorksheetForm::WorksheetForm(const Worksheets::DesignedSheet& sheet)
    : Form(QString::fromLatin1(sheet.form))
    , Picture1(new MetafileBox(this, QStringLiteral("Picture1")))
    , Command1(new QPushButton(tr("Print a worksheet"), this))
    , m_sheet(sheet)
{
    setWindowTitle(QStringLiteral("Form1"));
    setDesignSize(kWidth, kHeight);
    Twips::place(Picture1, 120, 120, kInside - 240, 7320);
    Picture1->setAccessibleName(tr("the worksheet"));
    Command1->setObjectName(QStringLiteral("Command1"));
    Command1->setFont(Twips::font(QStringLiteral("Times New Roman"), 12, true));
    Twips::place(Command1, (kInside - 2400) / 2, 7560, 2400, 600);
    connect(Command1, &QPushButton::clicked, this, &WorksheetForm::Command1_Click);
}

void WorksheetForm::Form_Load()
{
    Picture1->load(QString::fromLatin1(Module1::version == QLatin1String("1") ? m_sheet.secondary : m_sheet.primary));
}

void WorksheetForm::Command1_Click()
{
    printWorksheet();
}

void WorksheetForm::wayBack()
{
    Forms::unload(this);
}

bool WorksheetForm::printWorksheet()
{
    const Metafile sheet = *Picture1->picture();
    return Worksheets::printOrTell([&sheet] {
        Printer& p = printer();
        p.Orientation = Printer::Portrait;
        p.print(); // opens the job
        const QSizeF size = sheet.sizeInTwips();
        p.paintWith(QRectF(kPageLeft, kPageTop, size.width(), size.height()),
                    [&sheet](QPainter& painter, const QRectF& target) { sheet.play(painter, target); });
        p.endDoc();
    });
}

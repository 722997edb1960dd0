#pragma once
// The worksheet print forms: one for each activity, each holding the
// worksheet picture of the edition in use. The activities do not show them;
// they ask first and then print the picture the form holds (loading the form
// picks the picture).
#include "runtime/form.h"

#include <functional>

class MetafileBox;
class QPushButton;

namespace Worksheets {

struct DesignedSheet {
    const char* form;    // "y2fracprint1"
    const char* primary; // the picture in the primary edition
    const char* secondary; // and in the secondary edition
};

extern const DesignedSheet kHalves;
extern const DesignedSheet kMixedNumbers;
extern const DesignedSheet kOrdering;

} // namespace Worksheets

class WorksheetForm : public Form {
    Q_OBJECT
public:
    explicit WorksheetForm(const Worksheets::DesignedSheet& sheet);

    MetafileBox* Picture1; // the worksheet
    QPushButton* Command1; // "Print a worksheet"

    // Where the worksheet's top-left corner goes on the page, in twips.
    static constexpr double kPageLeft = 1000;
    static constexpr double kPageTop = 1000;

public slots:
    void Form_Load();
    void Command1_Click();

    // Prints the worksheet at its own size. Returns whether it printed; a
    // failure has been told to the child.
    bool printWorksheet();

protected:
    // Escape and the close box put the worksheet away.
    void wayBack() override;

private:
    const Worksheets::DesignedSheet& m_sheet;
};

class y2fracprint1 : public WorksheetForm {
    Q_OBJECT
public:
    y2fracprint1() : WorksheetForm(Worksheets::kHalves) {}
};
class y5fracprint4 : public WorksheetForm {
    Q_OBJECT
public:
    y5fracprint4() : WorksheetForm(Worksheets::kMixedNumbers) {}
};
class y6fracprint3 : public WorksheetForm {
    Q_OBJECT
public:
    y6fracprint3() : WorksheetForm(Worksheets::kOrdering) {}
};

namespace Worksheets {

// Runs a print routine; when the printer fails the child is told: "Printing
// has been cancelled." or "There was a problem printing to your printer.".
// Returns whether it printed.
bool printOrTell(const std::function<void()>& print);

// What an activity's print button does: "Do you really want to print?",
// with the year as the title; on Yes the worksheet of that print form is
// printed. Returns whether it printed.
bool askAndPrint(const QString& printForm);

} // namespace Worksheets

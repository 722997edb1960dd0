#pragma once
// What every activity's screen test does: open the activity from its menu
// as a child would, press Start with the keyboard, and type answers into
// its boxes. The worksheets of all activities are checked together, in
// tests/worksheets/tst_activitysheets.cpp.
#include "activities/activitytable.h"
#include "kit/kitboard.h"
#include "kit/kitscreen.h"
#include "shell/activityform.h"
#include "testsupport.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace ActivityTest {

// Opens the activity that `screen` names through its button on its menu;
// nullptr when that button leads somewhere else.
template <class Screen = KitScreen>
Screen* open(const QString& screen)
{
    const Activities::Row* row = Activities::forScreen(screen);
    if (!row)
        return nullptr;
    auto* button = Forms::show(QLatin1String(row->menu))->findChild<QPushButton*>(QLatin1String(row->button));
    if (!button)
        return nullptr;
    button->click();
    TestSupport::flushUnloads();
    auto* form = qobject_cast<Screen*>(Forms::find(screen));
    return form && form->isVisible() ? form : nullptr;
}

// Presses Start with the space bar, as a child working by keyboard would.
inline void pressStart(KitScreen* form)
{
    QApplication::setActiveWindow(form);
    QTest::keyClick(form->cmdstart, Qt::Key_Space);
}

// Opens the activity and presses Start; returns its board as `Board`, or
// nullptr.
template <class Board, class Screen = KitScreen>
Board* start(const QString& screen, Screen** opened = nullptr)
{
    Screen* form = open<Screen>(screen);
    if (!form)
        return nullptr;
    if (opened)
        *opened = form;
    pressStart(form);
    return qobject_cast<Board*>(form->board());
}

// Types `text` into the box (by default the one holding the keyboard) and
// presses Enter, or the key given.
inline void enter(const QString& text, QWidget* box = QApplication::focusWidget(), Qt::Key end = Qt::Key_Return)
{
    QTest::keyClicks(box, text);
    QTest::keyClick(box, end);
}

// Types `text` as enter() does; returns what the screen then says.
inline QString said(KitScreen* form, const QString& text, QWidget* box = QApplication::focusWidget())
{
    enter(text, box);
    return form->Label2->text();
}

// Presses Hint; returns what the screen then says.
inline QString hint(KitScreen* form)
{
    form->cmdhint->click();
    return form->Label2->text();
}

// A right answer: counted as the `counted`th, and praised before `statement`.
inline void expectPraised(KitScreen* form, const QString& statement, int counted = 1)
{
    QCOMPARE(Module1::counter, counted);
    QCOMPARE(form->Label2->text(), Module1::praisetext + statement);
}

} // namespace ActivityTest

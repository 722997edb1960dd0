#pragma once
// The practice -> Challenge -> certificate cycle, written once for every
// activity. An activity screen poses questions and judges answers; the run
// does everything around them: it counts right answers in `counter`, picks
// the praise phrase and moves the reward picture on, ends a run with the
// ready-for-the-Challenge text and the certificate, shows the retry screen
// when a Challenge answer is wrong, paces the next question, leads Exit back
// to the menu that lists the activity and prints its worksheet.
//
// The shared variables of Module1 stay the program's state; the run is the
// one place that moves them during an activity.
#include <QObject>
#include <QString>

class ActivityForm;
class FormTimer;
class QLabel;

class Run : public QObject {
    Q_OBJECT
public:
    explicit Run(ActivityForm& form);

    // The screen's instruction line, the message line that stands in its
    // place for a while, and the label that says the run is over.
    void setLabels(QLabel* instruction, QLabel* message, QLabel* endOfRun);
    // The words handed to the certificate routine, which does not use them.
    void setCertificateWords(const QString& words) { m_certificateWords = words; }
    // Writes the year's run length with a blank before it, as a number
    // turned into text is written in some screens' ready message.
    void setStreakWithBlank(bool on) { m_streakWithBlank = on; }

    // Start's last step: a fresh reward picture and the count from 0.
    void begin();

    // A right answer: counts it and moves the reward picture on. When that
    // ends the run the run's end follows at once (the ready text and the
    // certificate in practice; back to the menu and the certificate after a
    // Challenge) and this returns false. Otherwise the praise phrase and
    // `statement` show in the message line, `pace` starts (it poses the next
    // question), and this returns true.
    bool right(const QString& statement, FormTimer* pace);

    // A wrong answer: in the Challenge it starts the count and the same
    // reward picture again and shows the retry screen (after `rewardDelay`
    // when one is given); then `message` shows and `pace` (if any) starts.
    void wrong(const QString& message, FormTimer* pace, FormTimer* rewardDelay = nullptr);

    // An answer that cannot be checked, or a hint in the message line:
    // `message` shows and `back` brings the instruction and the same question back.
    void keep(const QString& message, FormTimer* back);

    // The retry screen, when a screen has held it back (see wrong()).
    void showRetryScreen();

    void showMessage(const QString& text);
    void showInstruction();

    // Hints are for practice only.
    static bool hintsAllowed();

    // Back to the menu that lists this activity.
    void exit();
    // Asks first, then prints the activity's worksheet.
    void print();

    // The menu that lists this activity ("y2Intro").
    QString menu() const;

private:
    void endOfRun();

    ActivityForm& m_form;
    QLabel* m_instruction = nullptr;
    QLabel* m_message = nullptr;
    QLabel* m_end = nullptr;
    QString m_certificateWords;
    bool m_streakWithBlank = false;
};

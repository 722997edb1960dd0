#pragma once
// The tour's measurements: every timed change under its label, and the table
// they are reported in, with the targets.
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

class Timings {
public:
    // What is timed on every activity.
    enum Kind { Open, Praise, Certificate, CertificateBack, Exit, Print, KindCount };

    // A change between two menus (or the title screen).
    static QString menuChange(const QString& from, const QString& to);
    // A change on an activity, named by its screen.
    static QString activityChange(const QString& screen, Kind kind);
    // The activity's title, for the table.
    void nameActivity(const QString& screen, const QString& title) { m_titles.insert(screen, title); }
    // From startProgram to the title screen drawn, for information (the
    // first frame's target is against a bare window, in bench/run.sh).
    void noteStart(double ms) { m_startMs = ms; }
    // The heap the decoded pictures held at the end, for information.
    void notePictureHeap(double mib) { m_pictureHeapMiB = mib; }

    // The heap in use (glibc's own count), in MiB; 0 if unknown.
    static double heapMiB();

    void add(const QString& label, double ms);

    // Prints the table to stdout: the menu changes, one row per activity,
    // the peak memory and the worksheets printed.
    void printTable(int rounds, int pdfsPrinted) const;
    // Whether every timed change and the memory met their targets.
    bool allPass() const;

private:
    struct Summary {
        double median = 0;
        double worst = 0;
        int count = 0;
    };
    Summary summary(const QString& label) const;
    bool timedPass(const QString& label) const;

    QStringList m_menuOrder;
    QStringList m_activityOrder;
    QHash<QString, QVector<double>> m_samples;
    QHash<QString, QString> m_titles;
    double m_startMs = 0;
    double m_pictureHeapMiB = 0;
};

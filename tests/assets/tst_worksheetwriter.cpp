// The worksheet metafile writer's own rules: the header's sums and the object slots it hands out.
#include "wmfwriter.h"

#include <QtEndian>
#include <QtTest>

class TestWorksheetWriter : public QObject
{
    Q_OBJECT

private slots:
    // A new object takes the lowest free slot, as Windows gives it when the sheet is played, so each
    // select names the object the writer meant.
    void reusesSlots()
    {
        WmfWriter w(1000, 1000);
        QCOMPARE(w.createPen(WmfOut::PenSolid, 15, Qt::black), 0);
        QCOMPARE(w.createBrush(WmfOut::BrushSolid, Qt::red), 1);
        QCOMPARE(w.createFont(WmfOut::Font()), 2);
        w.deleteObject(1);
        QCOMPARE(w.createBrush(WmfOut::BrushNull, Qt::white), 1);
        w.deleteObject(0);
        w.deleteObject(1);
        QCOMPARE(w.createPen(WmfOut::PenDash, 10, Qt::blue), 0);
        QCOMPARE(w.createPen(WmfOut::PenDot, 10, Qt::blue), 1);
        QCOMPARE(w.createPen(WmfOut::PenNull, 0, Qt::blue), 3);
        w.selectObject(3);
        w.polygon({QPoint(0, 0), QPoint(999, 0), QPoint(500, 999)});
        // The select named a live object, and the header's object table holds the four alive at once.
        const QByteArray bytes = w.finish();
        QVERIFY2(!bytes.isEmpty(), qPrintable(w.error()));
        QCOMPARE(qFromLittleEndian<quint16>(bytes.constData() + 22 + 10), quint16(4));
    }
};

QTEST_GUILESS_MAIN(TestWorksheetWriter)
#include "tst_worksheetwriter.moc"

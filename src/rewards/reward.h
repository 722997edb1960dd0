#pragma once
// The retry screen: a borderless panel over the activity that either tells
// the child the Challenge failed and begins again (retry = 1), or plays 50
// frames of a star animation.
#include "runtime/form.h"

class FormTimer;
class PictureBox;
class QLabel;

class Reward : public Form {
    Q_OBJECT
public:
    Reward();

    QLabel* Label1;
    QLabel* Label2;
    PictureBox* Image2;
    FormTimer* Timer1; // stars
    FormTimer* Timer2; // ends the retry message
    FormTimer* Timer3;

    // "reward\stars207.jpg": frame k of star series s.
    static QString starFile(int series, int k);

    static constexpr int kWidthTwips = 4860;
    static constexpr int kHeightTwips = 3930;
    static constexpr int kStarFrameMs = 60;
    static constexpr int kRetryMessageMs = 3000;
    static constexpr int kRetryTimer3Ms = 1500;
    static constexpr int kStarSeries = 4;
    static constexpr int kFramesPerSeries = 20;

    // Over the board of the activity on screen, when there is one.
    void placeOverTheBoard();

public slots:
    void Form_Load();
    void Timer1_Timer();
    void Timer2_Timer();
    void Timer3_Timer();

protected:
    // The panel has no close box; should the window system close it all the
    // same, or Escape be pressed, it goes as its timers would take it away.
    void wayBack() override;
};

#pragma once
// The base of every screen. A form has a name (its objectName), a design size
// in twips (Width and Height include the window's border and title bar, as
// the screens were designed), a back colour, an icon and a caption.
// Its load steps are the public slot Form_Load, run by Forms::load after the
// controls are built.
#include <QColor>
#include <QWidget>

class QAbstractButton;
class FocusRing;
class FormTimer;

class Form : public QWidget {
    Q_OBJECT
public:
    explicit Form(const QString& name, QWidget* parent = nullptr);

    // Outer size in twips (Width, Height); the inside is smaller by the border
    // and title bar.
    void setDesignSize(int widthTwips, int heightTwips);
    int designWidth() const { return m_designWidth; }
    int designHeight() const { return m_designHeight; }
    // Inside size in twips (ScaleWidth, ScaleHeight).
    void setScaleSize(int scaleWidthTwips, int scaleHeightTwips);

    void setBackColour(const QColor& colour);
    QColor backColour() const { return m_back; }
    void setIconPicture(const QString& assetPath);
    QString iconPath() const { return m_iconPath; }

    // Top and Left of the window on the display, in twips.
    void moveTo(int leftTwips, int topTwips);

    // Does what the window's close box does (a full-screen window in front
    // of the screen passes its own close box on here).
    void pressCloseBox() { closeBoxPressed(); }

    // The border and title bar of a window in twips, from the activity
    // screens' design (Width 9600 with ScaleWidth 9480, Height 7200 with
    // ScaleHeight 6510).
    static constexpr int kBorderWidthTwips = 120;
    static constexpr int kBorderHeightTwips = 690;

    // The outer size every full screen is designed at (the title, the menus
    // and the activities).
    static constexpr int kScreenWidthTwips = 9600;
    static constexpr int kScreenHeightTwips = 7200;
    // The inside width of a full screen (its ScaleWidth).
    static constexpr int kScreenScaleWidthTwips = kScreenWidthTwips - kBorderWidthTwips;

    // The controls in the order Tab takes them: reading order (see
    // runtime/keyboard). A screen whose design reads otherwise changes it.
    virtual QList<QWidget*> tabOrder() const;
    // The control the keyboard starts on: by default the first in tabOrder().
    virtual QWidget* firstControl() const;
    // After the load steps: Tab in tabOrder(), and the focus on firstControl()
    // unless the load steps put it somewhere.
    void prepareKeyboard();

protected:
    // The screen's way back (Goodbye, Exit): what Escape does. By default
    // there is none.
    virtual void wayBack() {}
    // What the window's close box does; by default the way back.
    virtual void closeBoxPressed();
    void closeEvent(QCloseEvent* event) override;
    // Escape takes the way back; Return presses the focused button (Space
    // does by itself). Keys a control keeps for itself never come here.
    void keyPressEvent(QKeyEvent* event) override;
    // Tab follows tabOrder() as the screen stands now.
    bool focusNextPrevChild(bool next) override;

    FormTimer* addTimer(const QString& name, int intervalMs);

private:
    int m_designWidth = 0;
    int m_designHeight = 0;
    QColor m_back;
    QString m_iconPath;
    FocusRing* m_focusRing;
};

// Gives a button its picture (an icon above its caption, as on the designed
// screens) and remembers the asset path for tests.
void setButtonPicture(QAbstractButton* button, const QString& assetPath);
// Fills a control's background with a colour.
void setControlBackColour(QWidget* control, const QColor& colour);

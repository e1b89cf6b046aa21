#pragma once

#include <QStringList>
#include <QTimeEdit>

#include <functional>

/// A time edit in overwrite mode: a typed digit replaces the digit at the cursor, a deleted digit becomes 0.
///
/// Parts of the time that the format does not show keep their value. Input that is not a valid time is ignored; times
/// are clamped to minimum and maximum. Digits are displayed as 0 to 9 and can be typed in any script.
///
/// The display format can be chosen from a list, as the one that loses least precision: of the time or, while the field
/// has the focus or its dynamic property "forceMaxtimeFormat" is true, of the maximum time. Apostrophes in a format
/// become typographic ones. Buttons and the wheel step the section at the cursor and stop at midnight. The wheel
/// requires the focus.
///
/// Keys: a digit replaces the one at the cursor, Backspace and Delete make it 0. Up, Down, Page Up and Page Down step
/// the section at the cursor and stop at midnight; only Up and Down change the AM/PM section.
///
/// The layout direction is always left-to-right. As with any field of Qt, a slot of `dateTimeChanged` or `timeChanged`
/// must use deleteLater() to delete it. GUI thread only.
class ZTimeEdit : public QTimeEdit
{
    Q_OBJECT
    Q_PROPERTY(QString styleTag READ styleTag WRITE setStyleTag)
    Q_PROPERTY(QStringList displayFormatList READ displayFormatList WRITE setDisplayFormatList)

public:
    explicit ZTimeEdit(QWidget* parent = nullptr);

    /// Tag for selectors of style sheets; empty by default. "shrinkWidth" makes the field as wide as its text, without
    /// room for buttons and a frame.
    QString styleTag() const { return currentStyleTag; }
    void setStyleTag(const QString& tag);

    /// Formats to choose from; empty by default, which leaves the format to `setDisplayFormat`.
    QStringList displayFormatList() const { return formats; }
    void setDisplayFormatList(const QStringList& list);

    /// Step of the milliseconds section in milliseconds, at least 1; 1 by default.
    int millisecondStep() const { return stepOfMilliseconds; }
    void setMillisecondStep(int milliseconds) { stepOfMilliseconds = qMax(1, milliseconds); }

    /// Sets the time, clamped to minimum and maximum. Ignores an invalid time.
    void setTimeClamped(const QTime& time);

    void stepBy(int steps) override;

public Q_SLOTS:
    /// Chooses the format and adjusts the width. Called when the time or the focus changes.
    void updateStyle();

Q_SIGNALS:
    /// Emitted after Return or Enter was pressed and the field released the focus.
    void EnterPressed();

protected:
    QString textFromDateTime(const QDateTime& dateTime) const override;
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void watchCursor();
    bool handleByQt(const std::function<void()>& handle);
    void finishHandlingByQt();
    QTime read(const QString& text) const;
    void chooseFormat();
    void finish();
    void typeDigit(QKeyEvent& event, int digit);
    void setTimeFromText(const QString& text, int position, const QTime& fallback);
    void clearSelection(bool toClipboard);
    void setAfternoon(bool on);
    void fillGap(const QString& before, const QTime& timeBefore);
    void overwrite(int digit);

    QString currentStyleTag;
    QStringList formats;
    QStringList distinctFormats; ///< the subset of `formats` to choose from
    int stepOfMilliseconds = 1;
    int depthInQt = 0;            ///< nesting level of events and cursor moves that Qt handles
    bool formatIsPending = false; ///< whether a new format is to be set when that becomes 0
};

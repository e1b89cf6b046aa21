#pragma once

#include <QStringList>
#include <QTimeEdit>

#include <functional>

/// A field for a time of day, of which the digits are overwritten where they stand: a typed digit replaces the one at
/// the cursor, and a deleted one leaves a zero. Parts of the time that the format does not show keep their value. What
/// would be no time is not taken, and beyond the minimum or maximum the time becomes that. Digits are shown as 0 to 9
/// and can be typed in the digits of any script.
///
/// The display format can be chosen from a list, as the one that loses least: of the time, or of the maximum time while
/// the field has the focus or its dynamic property "forceMaxtimeFormat" is true. An apostrophe in a format becomes a
/// typographic one. Keys, buttons and wheel step the
/// section at the cursor and stop at midnight; on AM/PM, only the keys Up and Down act. The wheel steps in focus only.
///
/// It lies from left to right in every layout direction, as times are written. GUI thread only.
///
/// As with any field of Qt, a slot of `dateTimeChanged` or `timeChanged` that wants it gone calls deleteLater(): the
/// field goes on with the key or click that changed the time.
class ZTimeEdit : public QTimeEdit
{
    Q_OBJECT
    Q_PROPERTY(QString styleTag READ styleTag WRITE setStyleTag)
    Q_PROPERTY(QStringList displayFormatList READ displayFormatList WRITE setDisplayFormatList)

public:
    explicit ZTimeEdit(QWidget* parent = nullptr);

    /// For selectors of a style sheet. With "shrinkWidth" the field is as wide as its text, which leaves no room for
    /// buttons and a frame.
    QString styleTag() const { return currentStyleTag; }
    void setStyleTag(const QString& tag);

    /// The formats to choose from, as for `setDisplayFormat`, which decides alone when the list is empty.
    QStringList displayFormatList() const { return formats; }
    void setDisplayFormatList(const QStringList& list);

    /// What one step in the section of milliseconds is, at least and by default 1.
    int millisecondStep() const { return stepOfMilliseconds; }
    void setMillisecondStep(int milliseconds) { stepOfMilliseconds = qMax(1, milliseconds); }

    /// Sets the time, or the minimum or maximum when it is beyond them. An invalid time is ignored.
    void setTimeClamped(const QTime& time);

    void stepBy(int steps) override;

public Q_SLOTS:
    /// Chooses the format and fits the width. It happens by itself when the time or the focus changes.
    void updateStyle();

Q_SIGNALS:
    /// Return or Enter was pressed; the field has given up the focus.
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
    bool letQt(const std::function<void()>& handle);
    void leaveQt();
    QTime read(const QString& text) const;
    void chooseFormat();
    void finish();
    void typeDigit(QKeyEvent& event, int digit);
    void setTimeOf(const QString& text, int position, const QTime& fallback);
    void clearSelection(bool toClipboard);
    void setAfternoon(bool on);
    void fillGap(const QString& before, const QTime& timeBefore);
    void overwrite(int digit);

    QString currentStyleTag;
    QStringList formats;
    QStringList distinctFormats; ///< those among `formats` that an update has to try
    int stepOfMilliseconds = 1;
    int depthInQt = 0;        ///< of events and moves of the cursor that Qt is busy with
    bool formatWaits = false; ///< until it is done with them
};

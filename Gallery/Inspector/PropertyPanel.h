#pragma once

#include "PropertyEditor.h"

#include <QPointer>
#include <QTimer>
#include <QVariant>
#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;
class QLineEdit;
class QScrollArea;
class QToolButton;
class QVBoxLayout;

namespace Zelkor::Gallery {

/// The writable properties of an object, each with a control, under the classes that declare them: its own class first.
///
/// A value that is not the default stands out, and a button beside it goes back. The line at the bottom is what a style
/// sheet says to set the property that is being edited. The controls of a class are made when it is unfolded; they
/// follow the object while they are seen. Object names of the parts of a row: "edit:NAME", "value:NAME" for a
/// type that is shown only, "reset:NAME".
class PropertyPanel : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyPanel(QWidget* parent = nullptr);

    /// Shows another object, null for none; it may die at any time. `defaults` are values by property name.
    void SetObject(QObject* object, const QVariantMap& defaults);

    /// Reads the values anew. A control that has the focus keeps what is being entered.
    void Refresh();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    struct Row
    {
        QMetaProperty property;
        QVariant value;
        QString file; ///< of a picture
        PropertyControl editor;
        QLabel* name;
        QLineEdit* text; ///< null where there is a control
        QToolButton* reset;
    };

    struct Group
    {
        const QMetaObject* declaring;
        QToolButton* heading;
        QWidget* body;
        bool filled;
    };

    void AddGroup(const QMetaObject* declaring);
    void Unfold(int group, bool on);
    void AddRow(const QMetaProperty& property, QGridLayout* grid);
    void Write(int row, const QVariant& value, const QString& file);
    void Show(Row& row);
    void ShowLine(int row);

    QPointer<QObject> object;
    QVariantMap defaults;
    std::vector<Group> groups;
    std::vector<Row> rows;
    QTimer timer;
    QScrollArea* area;
    QVBoxLayout* list = nullptr;
    QLabel* lineLabel;
    QLineEdit* line;
    QToolButton* copyButton;
    int currentRow = -1;
    int generation = 0;   ///< of rows; controls of earlier ones may still tell something
    bool showing = false; ///< what controls tell was not entered
};

/// The values of the writable properties of an object, by name.
QVariantMap PropertyValues(const QObject& object);

} // namespace Zelkor::Gallery

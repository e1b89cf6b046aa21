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
/// Highlights values other than the default, with a button that resets them. The line at the bottom is the style sheet
/// declaration of the edited property. The controls of a class are created when its group is expanded, and follow the
/// object while visible. Object names in a row: "edit:NAME", "value:NAME" for a read-only type, "reset:NAME".
class PropertyPanel : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyPanel(QWidget* parent = nullptr);

    /// Sets the object, null for none. It may be deleted at any time. `defaults` are values by property name.
    void SetObject(QObject* object, const QVariantMap& defaults);

    /// Updates the values, except in a control that has the focus.
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
        QLineEdit* text; ///< null if the type has a control
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
    int generation = 0;   ///< of the rows; controls of earlier rows may still emit signals
    bool showing = false; ///< signals of controls are not user input
};

/// Returns the values of the writable properties of an object by name.
QVariantMap PropertyValues(const QObject& object);

} // namespace Zelkor::Gallery

#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

#include <optional>

class OVRestrictedTextField;
class QWidget;
namespace Ui {
class MainUtilityWindiw;
}

// The window's controls as they start: texts in the user's language, the
// settings fields with their character rules and defaults, the tab order.
class OVWindowSetUp {
public:
    // The model name of the information dictionary titles the window; none
    // (an installed build) gives the default title. The queue follows it.
    static void setUpWindowTitle(QWidget *window, const std::optional<QVariantMap> &dictionary,
                                 const QString &queue);
    // Everything above the window's buttons scrolls, so that the window fits
    // a small or scaled screen with OK and Close in view.
    static void makeScrollable(Ui::MainUtilityWindiw &c);
    // No larger than the screen's available area.
    static void fitIntoScreen(QWidget *window);
    static void setUpTexts(Ui::MainUtilityWindiw &c);
    static void setUpSettingsFields(Ui::MainUtilityWindiw &c);
    // The community's characters and length; refused: the alert's title,
    // "%1" naming the refused character.
    static void restrictToCommunityCharacters(OVRestrictedTextField *field, const char *refused);
    static void setUpFolderTab(Ui::MainUtilityWindiw &c);
    // With "tab focus reaches all controls" every control is in the chain,
    // aboveTabs (controls made in code, such as the message bar's button)
    // between the settings and the tabs; otherwise Tab moves between the text
    // fields only.
    static void setTabOrder(Ui::MainUtilityWindiw &c, const QList<QWidget *> &aboveTabs);
};

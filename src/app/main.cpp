// Brindlepot: a kitchen program for the family.
#include "common/programfolder.h"
#include "guides/screens/convform.h"
#include "guides/screens/foodg.h"
#include "recipetools/screens/form5.h"
#include "shell/kit/qtdialogs.h"
#include "shell/logic/deliveredfiles.h"
#include "shell/screens/screenmetrics.h"
#include "shell/screens/startfrm.h"
#include "shopping/screens/shoplist.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Brindlepot"));
    QApplication::setApplicationVersion(QStringLiteral("7.0"));

    InstallDeliveredFiles(ProgramFolder());
    QtDialogs dialogs;
    SystemScreenMetrics screen;
    Startfrm startfrm(dialogs, screen);
    startfrm.registerActivity(MainCommand::RecipeFiles, [&dialogs] { return new Form5(dialogs); });
    startfrm.registerActivity(MainCommand::FoodGuide, [&dialogs] { return new Foodg(dialogs); });
    startfrm.registerActivity(MainCommand::MeasGuide, [&dialogs] { return new Convform(dialogs); });
    startfrm.registerActivity(MainCommand::ShoppingList, [&dialogs] { return new Shoplist(dialogs); });
    QObject::connect(&startfrm, &Startfrm::exitConfirmed, &app, [] { QApplication::exit(0); });
    startfrm.show();
    return app.exec();
}

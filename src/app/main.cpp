// Brindlepot: a kitchen program for the family.
#include "backup/screens/backup1.h"
#include "common/programfolder.h"
#include "guides/screens/convform.h"
#include "guides/screens/foodg.h"
#include "planner/screens/zcalandar.h"
#include "recipetools/screens/form5.h"
#include "shell/kit/programidentity.h"
#include "shell/kit/qtdialogs.h"
#include "shell/logic/deliveredfiles.h"
#include "shell/logic/folderaccess.h"
#include "shell/screens/screenmetrics.h"
#include "shell/screens/singleinstance.h"
#include "shell/screens/startfrm.h"
#include "storage/screens/form24.h"
#include "shopping/screens/shoplist.h"
#include "tracker/screens/weighttracker.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Brindlepot"));
    QApplication::setApplicationVersion(QStringLiteral("7.0"));
    InstallProgramIdentity();

    InstallDeliveredFiles(ProgramFolder());
    QtDialogs dialogs;
    SingleInstance instance(ProgramFolder());
    switch (instance.start()) {
    case SingleInstance::Start::First:
        break;
    case SingleInstance::Start::HandedOver:
        return 0;
    case SingleInstance::Start::AlreadyOpen:
        dialogs.tell(QStringLiteral("Brindlepot"), SingleInstance::alreadyOpenText(ProgramFolder()),
                     Icon::Exclamation);
        return 1;
    }
    if (const std::optional<Message> readOnly = ReadOnlyFolderWarning(ProgramFolder()))
        dialogs.ask(*readOnly);
    SystemScreenMetrics screen;
    Startfrm startfrm(dialogs, screen);
    QObject::connect(&instance, &SingleInstance::raiseRequested, &startfrm, &Startfrm::bringForward);
    // The screens with backup commands open Backup1 through one routine.
    startfrm.registerActivity(MainCommand::RecipeFiles, [&dialogs] {
        auto* form = new Form5(dialogs);
        form->setBackupOpener([form, &dialogs](int mode, int cookbook) {
            return RunBackup1(form, dialogs, mode, {cookbook, 0});
        });
        return form;
    });
    startfrm.registerActivity(MainCommand::FoodGuide, [&dialogs] { return new Foodg(dialogs); });
    startfrm.registerActivity(MainCommand::MeasGuide, [&dialogs] { return new Convform(dialogs); });
    startfrm.registerActivity(MainCommand::Emergency, [&dialogs] {
        auto* form = new Form24(dialogs, StorageKind::Emergency);
        form->setBackupOpener([form, &dialogs](int mode) { RunBackup1(form, dialogs, mode, {}); });
        return form;
    });
    startfrm.registerActivity(MainCommand::MenuPlanner, [&dialogs] {
        auto* planner = new Zcalandar(dialogs);
        planner->setBackupOpener([planner, &dialogs](int mode, int year) {
            RunBackup1(planner, dialogs, mode, {1, year});
        });
        return planner;
    });
    startfrm.registerActivity(MainCommand::ShoppingList, [&dialogs] { return new Shoplist(dialogs); });
    startfrm.registerActivity(MainCommand::WeightTracker, [&dialogs] { return new WeightTracker(dialogs); });
    QObject::connect(&startfrm, &Startfrm::exitConfirmed, &app, [] { QApplication::exit(0); });
    startfrm.show();
    return app.exec();
}

#pragma once
// The panel "Cookbook Titles": one box of 30 characters for each of the
// eight cookbooks.
#include "shell/kit/overlaypanel.h"

#include <QList>

class QLineEdit;

class CookbookTitlesPanel final : public OverlayPanel {
    Q_OBJECT
public:
    explicit CookbookTitlesPanel(QWidget* parent);

    void open(const QStringList& titles);
    QStringList titles() const;

signals:
    void saveRequested(const QStringList& titles);

private:
    QList<QLineEdit*> boxes_;
};

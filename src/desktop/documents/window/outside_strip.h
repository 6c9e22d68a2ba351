#pragma once

#include "desktop/bind.h"
#include "documents/files/outside_notice.h"

#include <QFrame>

class QBoxLayout;

namespace tarvex {

/// The strip that says what another program did to a document's file. Its owner decides where it stands and shows it.
class OutsideStrip : public QFrame {
    Q_OBJECT
public:
    /// The notice outlives the view; `name` distinguishes the strips of the two documents.
    OutsideStrip(OutsideNotice& notice, const QString& name, QWidget* parent);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void addButton(QBoxLayout& row, Button& state, const QString& name);
    void addShortcut();
    void showGround();

    OutsideNotice& m_notice;
    Bindings m_bindings;
};

} // namespace tarvex

#include "desktop/viewer/select_picture_view.h"

#include "desktop/closing_buttons.h"
#include "desktop/platform/qt_pictures.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QVBoxLayout>

namespace tarvex {

namespace {

/// A picture as large as it fits, never larger than it is.
class PreviewArea : public QWidget {
public:
    explicit PreviewArea(QWidget* parent) : QWidget(parent)
    {
        constexpr QSize smallest(220, 180);
        setMinimumSize(smallest);
    }
    void showPicture(const LoadedPicture* picture)
    {
        const auto* loaded = dynamic_cast<const QtPicture*>(picture);
        m_picture = loaded == nullptr ? QPixmap() : QPixmap::fromImage(loaded->image());
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        if (m_picture.isNull()) return;
        QSize size = m_picture.size();
        if (size.width() > width() || size.height() > height()) size.scale(this->size(), Qt::KeepAspectRatio);
        QRect place(QPoint(), size);
        place.moveCenter(rect().center());
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(place, m_picture);
    }

private:
    QPixmap m_picture;
};

} // namespace

SelectPictureView::SelectPictureView(SelectPictureForm& form, QWidget* parent)
    : FormWindow(form.Form, QStringLiteral("SelectPictureForm"), parent)
{
    auto* drives = new QComboBox(this);
    drives->setObjectName(QStringLiteral("Drive1"));
    m_bindings.comboBox(form.Drive1, *drives);
    QListWidget* folders = list(form.Dir1, "Dir1", Bindings::Runs::OnClickOrReturn);
    QListWidget* files = list(form.File1, "File1", Bindings::Runs::OnChoice);
    auto* path = new QLabel(this);
    path->setObjectName(QStringLiteral("Label1"));
    path->setTextFormat(Qt::PlainText);
    path->setWordWrap(true);
    m_bindings.bind(form.Label1.Caption,
                    [path](const std::string& text) { path->setText(withBreaksInLongWords(toQt(text))); });

    auto* grid = new QGridLayout;
    const auto add = [&](const QString& caption, QWidget* widget, int column) {
        auto* label = new QLabel(caption, this);
        label->setBuddy(widget);
        grid->addWidget(label, 0, column);
    };
    add(QStringLiteral("&Drive and folder:"), drives, 0);
    add(QStringLiteral("&Files:"), files, 1);
    grid->addWidget(drives, 1, 0);
    grid->addWidget(folders, 2, 0);
    grid->addWidget(files, 1, 1, 2, 1);
    grid->addWidget(preview(form), 1, 2, 2, 1);
    grid->setColumnStretch(2, 1);
    files->setAccessibleName(QStringLiteral("Files"));
    folders->setAccessibleName(QStringLiteral("Folders"));

    connect(files, &QListWidget::itemDoubleClicked, this, [&form] { form.Command1.Click(); });

    auto* column = new QVBoxLayout(this);
    column->addLayout(grid, 1);
    column->addWidget(path);
    column->addWidget(closingButtons(*this,
                                     {{QDialogButtonBox::Ok, form.Command1, QStringLiteral("Command1")},
                                      {QDialogButtonBox::Cancel, form.Command2, QStringLiteral("Command2")}},
                                     m_bindings));
    files->setFocus();
}

QListWidget* SelectPictureView::list(ListBox& state, const char* name, Bindings::Runs runs)
{
    auto* view = new QListWidget(this);
    view->setObjectName(QLatin1String(name));
    m_bindings.listBox(state, *view, runs);
    return view;
}

QWidget* SelectPictureView::preview(SelectPictureForm& form)
{
    auto* area = new PreviewArea(this);
    area->setObjectName(QStringLiteral("ImagePreview"));
    area->setAccessibleName(QStringLiteral("Picture of the chosen file"));
    m_bindings.bind(form.ImagePreview,
                    [area](const std::shared_ptr<const LoadedPicture>& picture) { area->showPicture(picture.get()); });
    return area;
}

} // namespace tarvex

#include "workshop/window/FolderQuestion.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace gfc::workshop {

FolderQuestion::FolderQuestion(const QString& title, const QString& text, const QString& does,
                               QWidget* parent)
    : QDialog(parent), folder_(new QLineEdit), accept_(nullptr) {
    setObjectName(QStringLiteral("FolderQuestion"));
    setWindowTitle(title);
    folder_->setObjectName(QStringLiteral("Folder"));
    folder_->setMinimumWidth(folder_->fontMetrics().averageCharWidth() * 48);
    auto* says = new QLabel(text);
    says->setWordWrap(true);
    auto* label = new QLabel(tr("&Folder:"));
    label->setBuddy(folder_);
    auto* browse = new QPushButton(tr("&Browse..."));
    browse->setAutoDefault(false);
    auto* line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(folder_, 1);
    line->addWidget(browse);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
    accept_ = buttons->addButton(does, QDialogButtonBox::AcceptRole);
    accept_->setObjectName(QStringLiteral("Accept"));
    accept_->setEnabled(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(says);
    layout->addLayout(line);
    layout->addWidget(buttons);
    accept_->setDefault(true);
    connect(browse, &QPushButton::clicked, this, &FolderQuestion::Browse);
    connect(folder_, &QLineEdit::textChanged, this, [this] { accept_->setEnabled(!Folder().isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void FolderQuestion::Propose(const QString& folder) {
    folder_->setText(QDir::toNativeSeparators(folder));
    folder_->selectAll();
}

QString FolderQuestion::Folder() const {
    return folder_->text().trimmed();
}

void FolderQuestion::Browse() {
    QDir near(Folder());
    while (!near.exists() && near.path() != QFileInfo(near.path()).path()) {
        near.setPath(QFileInfo(near.path()).path());
    }
    const QString folder = QFileDialog::getExistingDirectory(this, windowTitle(), near.path());
    if (!folder.isEmpty()) {
        Propose(folder);
    }
    folder_->setFocus();
}

QString UnusedFolder(const QString& name) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QDir home(QFileInfo(documents).isDir() ? documents : QDir::homePath());
    QString free = name;
    for (int number = 2; !QDir(home.filePath(free)).isEmpty() && QFileInfo::exists(home.filePath(free));
         ++number) {
        free = QStringLiteral("%1-%2").arg(name).arg(number);
    }
    return home.filePath(free);
}

} // namespace gfc::workshop

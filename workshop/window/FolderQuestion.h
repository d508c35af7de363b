#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;

namespace gfc::workshop {

/// Asks for a folder that need not be there: the toolkit's own question takes only one that is. Nothing is
/// made here.
class FolderQuestion : public QDialog {
    Q_OBJECT
public:
    /// `text` says what comes into the folder, `does` is on the button that goes on with it.
    FolderQuestion(const QString& title, const QString& text, const QString& does, QWidget* parent = nullptr);

    /// A folder to begin with; Enter alone takes it.
    void Propose(const QString& folder);
    /// Of an accepted question; never empty.
    [[nodiscard]] QString Folder() const;

private:
    void Browse();

    QLineEdit* folder_;
    QPushButton* accept_;
};

/// A folder of that name below the user's documents, with a number behind it where it holds anything already.
[[nodiscard]] QString UnusedFolder(const QString& name);

} // namespace gfc::workshop

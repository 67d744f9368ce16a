#pragma once

#include <QIcon>
#include <QWidget>

/// A picture from a file, drawn as sharp as the screen is. It is no label: a caption pass leaves it alone.
class Picture : public QWidget {
    Q_OBJECT

public:
    explicit Picture(QWidget* parent = nullptr);

    /// Shows the picture of that file; one that cannot be read leaves what was shown.
    void load(const QString& path);
    bool isEmpty() const { return m_picture.isNull(); }
    /// Of the picture that is shown.
    QString path() const { return m_path; }

    QSize sizeHint() const override;

signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_picture;
    QString m_path;
};

#pragma once

#include <QFrame>

class ImageList;
class QLabel;

/// The strip across the top of a window, named picLogoContainer: the picture of what the
/// window is about, its title, and in windows on the live system picNT at the right.
class Banner final : public QFrame
{
    Q_OBJECT

public:
    enum class Live { Without, With };
    explicit Banner(QWidget *parent = nullptr, Live live = Live::Without);

    /// Picture of ImageListContext.
    void setPicture(int number);
    /// A picture of another list, in the size of the banner's own.
    void setPicture(const ImageList &pictures, int number);
    /// 0 before the first setPicture().
    [[nodiscard]] int picture() const { return m_picture; }

    QLabel *picContext;
    QLabel *LblInfo;
    QLabel *picNT = nullptr; ///< hidden at first; nothing without Live::With

protected:
    void changeEvent(QEvent *event) override;

private:
    void showPicture();
    const ImageList *m_pictures;
    int m_picture = 0;
};

// HelpPaneWidget: shows a rich-text pane. Read only; text can be selected by mouse and, with
// Shift, by keys; Ctrl with plus, minus, 0 or the wheel changes the size of the text.
#pragma once

#include <QTextBrowser>
#include <memory>

namespace selvane {

struct HelpPane;
namespace rich_text {
struct Document;
}

class HelpPaneWidget : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpPaneWidget(QWidget* parent = nullptr);

    // Makes the widget match the record. A new load starts at the top and is announced; the same
    // one, shown again, touches nothing. True where it is new.
    bool ShowPane(const HelpPane& pane);

    int ZoomPercent() const { return zoomPercent_; } // 50 to 300

signals:
    void linkClicked(const QString& link); // as the document has it, fully encoded

public slots:
    // Nothing outside the document is ever fetched.
    QVariant loadResource(int type, const QUrl& name) override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void MakeDocument();
    void SetZoom(int percent);
    bool ZoomByKey(int key);
    bool ScrollByKey(int key);
    bool SelectByKey(const QKeyEvent& event);
    void Follow(const QUrl& link);
    void PaintOutline();

    std::shared_ptr<const rich_text::Document> text_;
    QTextDocument* document_ = nullptr; // made of the text; a child of this widget
    unsigned loads_ = 0;
    int zoomPercent_ = 100;
    int wheel_ = 0; // eighths of a degree not yet acted on
};

} // namespace selvane

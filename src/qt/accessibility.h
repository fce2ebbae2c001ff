// What the toolkit passes on to assistive technology: the core's words, and the roles of the
// program's own kinds of control.
#pragma once

class QString;
class QTextEdit;
class QWidget;

namespace selvane {

struct SpokenText;

// Links are links and pictures are graphics. To be called before the first control is made; more
// than once does no harm.
void InstallAccessibleRoles();

// Touches only what differs, as every change is announced.
void SetSpoken(QWidget& widget, const SpokenText& text);

// Announces that a pane shows a new text where it showed the one given.
void AnnounceNewText(QTextEdit& pane, const QString& before);

} // namespace selvane

#pragma once

class AlertBox;
class QWidget;
class Search;
class frmDoc;

namespace FindOn {

/// Goes on with the last search without its dialog: selects the next or the previous cell that it finds. At the end of
/// what is searched it begins again at the other one and says so.
void run(frmDoc &document, const Search &lastSearch, bool backwards, AlertBox &alert, QWidget *owner);

} // namespace FindOn

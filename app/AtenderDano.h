#pragma once

class ErrorZT;

/// Sees to damage in the user's store that shows while the main window stands: offers the automatic copies in
/// the place of the error. When the user goes back to one, the open forms are unloaded as soon as the event
/// loop has control again, since what they show is not in the copy; otherwise the process ends. False for
/// every other failure, and for one that shows during the offer itself: these are to be shown.
bool AtenderDano(const ErrorZT& error);

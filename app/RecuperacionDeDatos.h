#pragma once

/// Offers what a failure has left unsaved, form by form, once the main window is there. What is accepted
/// comes up in its form, marked as changed and not stored; where that cannot be, what was typed is shown as
/// text. Accepted or declined, it is offered no more; what comes after the first form that was opened waits
/// for the next start.
void OfrecerRecuperacion();

#pragma once

/// The entry procedure: the steps of the start in their order, from the named mark to the main window. It has
/// no handler; what fails climbs to the caller, which ends in the platform's own message.
void Main();

/// Tells the registry of forms how every form of the program is made.
void RegistrarFormularios();

#pragma once

/// The commands of the main window, as far as other forms change their state. The main window fills the
/// channel in while it is there.
class CanalMenus {
  public:
    CanalMenus() = default;
    CanalMenus(const CanalMenus&) = delete;
    CanalMenus& operator=(const CanalMenus&) = delete;
    virtual ~CanalMenus() = default;

    virtual void HabilitarMenu() = 0;
    virtual void DeshabilitarMenu() = 0;
};

/// Puts the channel in, or takes it away with nullptr. The caller keeps it alive.
void FijarMenus(CanalMenus* menus);

// The state of the commands, told from anywhere. Nothing happens while there is no main window.

/// Enables the commands with the state of the data and shows the recent declarants.
void Habilitar_menu();

/// Disables the commands while a form works alone on the frame; help stays.
void Deshabilitar_menu();

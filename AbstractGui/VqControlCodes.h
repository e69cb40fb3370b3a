#pragma once

// The codes of IVqUIcontrol::Get(), Set() and Command(): what each takes as index and data. An index is the
// number of a state where one is told, and not looked at elsewhere. "int" is a vq_int32 or a vq_uint32, and
// every pointer may be to either. Codes that no line names are free for concrete controls.

// Get and Set: every control -------------------------------------------------------------------------

constexpr unsigned vq_control_state = 1;               ///< int: the current state.
constexpr unsigned vq_control_check = 2;               ///< int: 1 when checked, else 0.
constexpr unsigned vq_control_value = 16;              ///< int: kept for the concrete control.
constexpr unsigned vq_control_command = 257;           ///< CVqStringW of the state: what it runs.
constexpr unsigned vq_control_text = 258;              ///< CVqStringW of the state: its label.
constexpr unsigned vq_control_tooltip = 259;           ///< CVqStringW of the state: its tooltip.
constexpr unsigned vq_control_bitmap = 260;            ///< int of the state: its image index.
constexpr unsigned vq_control_name = 262;              ///< CVqStringW: the control's name.
constexpr unsigned vq_control_translate_tooltip = 263; ///< Set, int: tooltips are translated when above 0.
constexpr unsigned vq_control_separator = 1536;        ///< Get, int: not 0 for a separator.

// Get and Set: concrete controls only ----------------------------------------------------------------

constexpr unsigned vq_control_state_count = 4; ///< int: number of states, at most 32.
constexpr unsigned vq_control_stays_last = 33; ///< Get, int: 0 for a separator that hides at the end.
constexpr unsigned vq_control_enlarge = 160; ///< Set, int: 1 when the toolbar enlarges its controls, else 0.
constexpr unsigned vq_control_zoom = 162;    ///< Set, double: the toolbar's additional zoom.

// The picker of a toolbar ----------------------------------------------------------------------------

constexpr unsigned vq_picker_boundary = 2306; ///< Set; data is the CVqList::CVqNode* of its first control.
constexpr unsigned vq_picker_callback = 2307; ///< Set; index is the callback's data, data the callback.
constexpr unsigned vq_picker_take = 2308;     ///< Command; data is the IVqUIcontrol* that moves into it.
constexpr unsigned vq_picker_list = 2309;     ///< Set; data is the toolbar's CVqList*.
constexpr unsigned vq_picker_map = 2310;      ///< Set; data is the toolbar's map of identifiers.

// Command --------------------------------------------------------------------------------------------

constexpr unsigned vq_control_read_state = 1;   ///< SVqControlStateInfo of the state, filled by the control.
constexpr unsigned vq_control_delete_state = 3; ///< Deletes the state; data is not looked at.
constexpr unsigned vq_control_write_state = 4;  ///< SVqControlStateInfo of the state, taken over.
constexpr unsigned vq_control_clear_states = 5; ///< Leaves no state; neither index nor data is looked at.

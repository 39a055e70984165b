<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="KS_help">
        <source></source>
        <translation>Kestrom reads your car's on-board diagnostics (OBD-II) through an ELM327-type adapter.

Connect: plug the adapter into the car's diagnostic port, usually below the steering wheel, and switch the ignition on. For a Wi-Fi adapter, join the adapter's own wireless network first, then choose Wi-Fi in Preferences and enter its address and port (most use 192.168.0.10 and 35000). For a Bluetooth adapter, choose Bluetooth; the first task you start asks which device to use.

Trouble codes: “Read codes” shows the stored codes with their meaning, the malfunction lamp and the readiness monitors. “Clear codes” erases the codes, switches the lamp off and resets the monitors; do it with the engine off, and only after writing the codes down.

Readiness: OK is a monitor that has completed its check, X one that has not yet (no fault: it checks while driving), N/A one that this car does not have. Where a diesel has another monitor in the same place, the name gives both.

Live data: choose a kind of run and press start. Each parameter has a small chart; click one to see it large and on the dial, hold Ctrl to pick a second one for the second dial. Preferences holds the list of parameters, the units and the language.

Logs: with run logging switched on in Preferences, every run is written to a file of its own in the folder “loggies”; the tooltip of Logs says where that folder is, and File &gt; Export run log… exports them as tables.

Expert: type any adapter command (AT I) or request (01 0C) and read the raw reply.

No answer? Check the ignition, the plug and the wireless connection, and close other programs that use the adapter.</translation>
    </message>
    <message id="no_reply_from_car_MSG">
        <source></source>
        <translation>The car did not answer. Switch the ignition on and try again.</translation>
    </message>
    <message id="no_reply_from_car_MSG_BT">
        <source></source>
        <translation>The adapter works, but the car did not answer.

Please check:
• The ignition is on, or the engine is running.
• The adapter sits firmly in the diagnostic port.
• The adapter chosen in the Bluetooth list is the one in this car.
• No phone or other program uses the adapter at the same time.
• The car supports OBD-II.</translation>
    </message>
    <message id="no_reply_from_car_MSG_TCP">
        <source></source>
        <translation>The adapter works, but the car did not answer.

Please check:
• The ignition is on, or the engine is running.
• The adapter sits firmly in the diagnostic port.
• This computer is joined to the Wi-Fi network of the adapter in this car.
• No phone or other program uses the adapter at the same time.
• The car supports OBD-II.</translation>
    </message>
    <message id="init_OBD_error_MSG">
        <source></source>
        <translation>The adapter could not start the car's diagnostic bus. Switch the ignition off and on again, make sure that the adapter sits firmly in the diagnostic port, and try once more.</translation>
    </message>
    <message id="blank_input_MSG">
        <source></source>
        <translation>Type a command first, for example AT I or 01 0C.</translation>
    </message>
    <message id="FIELD_ENGINE_MPG">
        <source></source>
        <translation>Fuel Economy</translation>
    </message>
    <message id="FIELD_ENGINE_BOOST">
        <source></source>
        <translation>Boost Pressure</translation>
    </message>
    <message id="tcp_no_answer_yet_MSG">
        <source></source>
        <translation>The adapter has not answered yet. Check that this computer is in the adapter's wireless network and that address and port are right.</translation>
    </message>
    <message id="bt_no_adapter_MSG">
        <source></source>
        <translation>No Bluetooth adapter was chosen. Press again to choose one.</translation>
    </message>
    <message id="bt_not_reached_MSG">
        <source></source>
        <translation>No Bluetooth connection. Press again to try once more. To choose another adapter, switch off “Reuse the last adapter” in the preferences.</translation>
    </message>
    <message id="bt_closed_MSG">
        <source></source>
        <translation>The Bluetooth connection has ended. Press Reconnect to connect again.</translation>
    </message>
    <message id="ui_where_to_begin">
        <source></source>
        <translation>Choose Preferences to set up your adapter, then Trouble codes to read the car.</translation>
    </message>
    <message id="ui_start_wifi">
        <source></source>
        <translation>&amp;Wi-Fi adapter</translation>
    </message>
    <message id="ui_start_bluetooth">
        <source></source>
        <translation>&amp;Bluetooth adapter</translation>
    </message>
    <message id="ui_start_demo">
        <source></source>
        <translation>Try with the &amp;virtual car</translation>
    </message>
    <message id="ui_rail_codes">
        <source></source>
        <translation>Trouble &amp;codes</translation>
    </message>
    <message id="ui_rail_live">
        <source></source>
        <translation>&amp;Live data</translation>
    </message>
    <message id="ui_rail_logs">
        <source></source>
        <translation>L&amp;ogs</translation>
    </message>
    <message id="ui_rail_logs_hint">
        <source></source>
        <translation>Live data writes run logs; File &gt; Export run log… exports them as tables</translation>
    </message>
    <message id="ui_rail_expert">
        <source></source>
        <translation>&amp;Expert</translation>
    </message>
    <message id="ui_rail_prefs">
        <source></source>
        <translation>&amp;Preferences</translation>
    </message>
    <message id="ui_rail_help">
        <source></source>
        <translation>&amp;Help</translation>
    </message>
    <message id="ui_busy">
        <source></source>
        <translation>Busy</translation>
    </message>
    <message id="ui_status">
        <source></source>
        <translation>Status</translation>
    </message>
    <message id="ui_codes_title">
        <source></source>
        <translation>Trouble codes</translation>
    </message>
    <message id="ui_read_codes">
        <source></source>
        <translation>&amp;Read codes</translation>
    </message>
    <message id="ui_read_codes_hint">
        <source></source>
        <translation>Read lamp, stored codes and readiness monitors</translation>
    </message>
    <message id="ui_clear_codes">
        <source></source>
        <translation>Cle&amp;ar codes…</translation>
    </message>
    <message id="ui_clear_codes_hint">
        <source></source>
        <translation>Erase stored codes and switch the lamp off</translation>
    </message>
    <message id="ui_lamp">
        <source></source>
        <translation>MIL lamp</translation>
    </message>
    <message id="ui_count">
        <source></source>
        <translation>Trouble codes</translation>
    </message>
    <message id="ui_read_on">
        <source></source>
        <translation>Read on</translation>
    </message>
    <message id="ui_adapter">
        <source></source>
        <translation>Adapter</translation>
    </message>
    <message id="ui_protocol">
        <source></source>
        <translation>Protocol</translation>
    </message>
    <message id="ui_units">
        <source></source>
        <translation>Control units</translation>
    </message>
    <message id="ui_col_code">
        <source></source>
        <translation>Code</translation>
    </message>
    <message id="ui_col_description">
        <source></source>
        <translation>Description</translation>
    </message>
    <message id="ui_codes_table">
        <source></source>
        <translation>Stored trouble codes</translation>
    </message>
    <message id="ui_codes_table_hint">
        <source></source>
        <translation>The descriptions use the terms of the standard SAE J2012</translation>
    </message>
    <message id="ui_codes_empty">
        <source></source>
        <translation>Stored trouble codes appear here after “Read codes”.</translation>
    </message>
    <message id="ui_codes_none">
        <source></source>
        <translation>The car reports no stored trouble codes.</translation>
    </message>
    <message id="ui_codes_unread">
        <source></source>
        <translation>The trouble codes could not be read completely.</translation>
    </message>
    <message id="ui_col_state">
        <source></source>
        <translation>State</translation>
    </message>
    <message id="ui_col_monitor">
        <source></source>
        <translation>Monitor</translation>
    </message>
    <message id="ui_col_kind">
        <source></source>
        <translation>Kind</translation>
    </message>
    <message id="ui_readiness_table">
        <source></source>
        <translation>Readiness monitors</translation>
    </message>
    <message id="ui_readiness_hint">
        <source></source>
        <translation>OK: the check is complete
X: not complete yet; this is no fault, the check runs while driving
N/A: this car does not have this monitor</translation>
    </message>
    <message id="ui_readiness_empty">
        <source></source>
        <translation>The readiness monitors appear here after “Read codes”.</translation>
    </message>
    <message id="ui_live_title">
        <source></source>
        <translation>Live data</translation>
    </message>
    <message id="ui_stall_hint">
        <source></source>
        <translation>waiting for the adapter, %1 s</translation>
    </message>
    <message id="ui_reconnect">
        <source></source>
        <translation>Reco&amp;nnect</translation>
    </message>
    <message id="ui_reconnect_hint">
        <source></source>
        <translation>Closes the link to the adapter and connects again</translation>
    </message>
    <message id="ui_reconnected">
        <source></source>
        <translation>Connected again. Press a button to go on.</translation>
    </message>
    <message id="ui_settings_not_saved">
        <source></source>
        <translation>The settings could not be saved. They are in use until Kestrom ends; then they are lost. Is the disk full or write-protected?</translation>
    </message>
    <message id="ui_live_run">
        <source></source>
        <translation>&amp;Run:</translation>
    </message>
    <message id="ui_live_run_hint">
        <source></source>
        <translation>Kind of run</translation>
    </message>
    <message id="ui_live_zoom">
        <source></source>
        <translation>&amp;Zoom:</translation>
    </message>
    <message id="ui_live_zoom_hint">
        <source></source>
        <translation>How many of the last samples the large chart shows</translation>
    </message>
    <message id="ui_live_start">
        <source></source>
        <translation>Start the run (Ctrl+R)</translation>
    </message>
    <message id="ui_live_stop">
        <source></source>
        <translation>Stop the run (Ctrl+R)</translation>
    </message>
    <message id="ui_live_next_sensors">
        <source></source>
        <translation>Next &amp;sensors</translation>
    </message>
    <message id="ui_live_strip">
        <source></source>
        <translation>Parameters</translation>
    </message>
    <message id="ui_live_strip_hint">
        <source></source>
        <translation>Click to show in the large chart; Ctrl or Shift for several</translation>
    </message>
    <message id="ui_live_chart">
        <source></source>
        <translation>Chart</translation>
    </message>
    <message id="ui_live_dial_1">
        <source></source>
        <translation>First dial</translation>
    </message>
    <message id="ui_live_dial_2">
        <source></source>
        <translation>Second dial</translation>
    </message>
    <message id="ui_live_empty">
        <source></source>
        <translation>No parameters are chosen. Choose what a run asks for in Preferences.</translation>
    </message>
    <message id="ui_live_press_start">
        <source></source>
        <translation>The round button at the top right starts the run.</translation>
    </message>
    <message id="ui_live_second_dial">
        <source></source>
        <translation>Ctrl+click on a second parameter above shows its dial here.</translation>
    </message>
    <message id="ui_fast">
        <source></source>
        <translation>F&amp;ast</translation>
    </message>
    <message id="ui_fast_hint">
        <source></source>
        <translation>Asks for several values at once and waits no longer than needed, as far as adapter and car prove that they can. Some cars do not like it: switch it off when lamps come on or the engine runs unevenly. Counts from the next start of a run.</translation>
    </message>
    <message id="ui_fast_no_use">
        <source></source>
        <translation>This car answers no faster than it is asked already.</translation>
    </message>
    <message id="ui_fast_rate">
        <source></source>
        <translation>%1 values/s</translation>
    </message>
    <message id="ui_fast_rate_hint">
        <source></source>
        <translation>Values a second, and how they are asked for</translation>
    </message>
    <message id="ui_fast_level_0">
        <source></source>
        <translation>one by one</translation>
    </message>
    <message id="ui_fast_level_1">
        <source></source>
        <translation>no waiting</translation>
    </message>
    <message id="ui_fast_level_2">
        <source></source>
        <translation>several at once</translation>
    </message>
    <message id="ui_fast_level_3">
        <source></source>
        <translation>several, no waiting</translation>
    </message>
    <message id="ui_fast_level_down">
        <source></source>
        <translation>Replies did not fit: fast sampling goes on more carefully</translation>
    </message>
    <message id="ui_fast_given_up">
        <source></source>
        <translation>Replies did not fit: sampling goes on one value at a time</translation>
    </message>
    <message id="ui_live_follow">
        <source></source>
        <translation>Follo&amp;w the chart</translation>
    </message>
    <message id="ui_live_follow_hint">
        <source></source>
        <translation>The first dial then moves with the parameter of the large chart.</translation>
    </message>
    <message id="ui_live_dial_unmoved">
        <source></source>
        <translation>Nothing moves this dial: choose the first parameter, or “Follow the chart”.</translation>
    </message>
    <message id="ui_live_length">
        <source></source>
        <translation>Length of the run</translation>
    </message>
    <message id="ui_live_reading">
        <source></source>
        <translation>%1: %2, range %3 to %4</translation>
    </message>
    <message id="ui_live_log_failed">
        <source></source>
        <translation>Logging stopped:</translation>
    </message>
    <message id="ui_live_no_sensors">
        <source></source>
        <translation>The car reports no oxygen sensors</translation>
    </message>
    <message id="ui_expert_title">
        <source></source>
        <translation>Expert</translation>
    </message>
    <message id="ui_transcript">
        <source></source>
        <translation>Transcript</translation>
    </message>
    <message id="ui_transcript_empty">
        <source></source>
        <translation>Commands and the adapter's raw replies appear here.</translation>
    </message>
    <message id="ui_command">
        <source></source>
        <translation>Command</translation>
    </message>
    <message id="ui_command_label">
        <source></source>
        <translation>Co&amp;mmand:</translation>
    </message>
    <message id="ui_command_hint">
        <source></source>
        <translation>AT I, 01 0C, 03 …</translation>
    </message>
    <message id="ui_command_too_long">
        <source></source>
        <translation>A command has at most 38 characters. Nothing was sent.</translation>
    </message>
    <message id="ui_send">
        <source></source>
        <translation>&amp;Send</translation>
    </message>
    <message id="ui_prefs_title">
        <source></source>
        <translation>Preferences</translation>
    </message>
    <message id="ui_adapter_group">
        <source></source>
        <translation>Adapter</translation>
    </message>
    <message id="ui_bluetooth">
        <source></source>
        <translation>&amp;Bluetooth</translation>
    </message>
    <message id="ui_wifi">
        <source></source>
        <translation>&amp;Wi-Fi</translation>
    </message>
    <message id="ui_address">
        <source></source>
        <translation>Add&amp;ress:</translation>
    </message>
    <message id="ui_port">
        <source></source>
        <translation>Por&amp;t:</translation>
    </message>
    <message id="ui_last_bt">
        <source></source>
        <translation>Re&amp;use the last adapter</translation>
    </message>
    <message id="ui_last_bt_hint">
        <source></source>
        <translation>Connect to the adapter chosen last without asking</translation>
    </message>
    <message id="ui_units_group">
        <source></source>
        <translation>Units and logging</translation>
    </message>
    <message id="ui_metric">
        <source></source>
        <translation>&amp;Metric units</translation>
    </message>
    <message id="ui_metric_hint">
        <source></source>
        <translation>km/h, °C and kPa instead of mph, °F and psi</translation>
    </message>
    <message id="ui_log_runs">
        <source></source>
        <translation>Lo&amp;g runs</translation>
    </message>
    <message id="ui_log_runs_hint">
        <source></source>
        <translation>Write every live-data run to a file</translation>
    </message>
    <message id="ui_language">
        <source></source>
        <translation>La&amp;nguage:</translation>
    </message>
    <message id="ui_language_desktop">
        <source></source>
        <translation>The desktop's language</translation>
    </message>
    <message id="ui_language_hint">
        <source></source>
        <translation>Takes effect at the next start. Descriptions of codes and names of monitors and parameters stay English.</translation>
    </message>
    <message id="ui_pids_group">
        <source></source>
        <translation>Parameters of a live-data run</translation>
    </message>
    <message id="ui_pids_table">
        <source></source>
        <translation>Parameters</translation>
    </message>
    <message id="ui_col_show">
        <source></source>
        <translation>Show</translation>
    </message>
    <message id="ui_col_parameter">
        <source></source>
        <translation>Parameter</translation>
    </message>
    <message id="ui_prefs_saved_on_leaving">
        <source></source>
        <translation>Changes are saved when you leave this screen.</translation>
    </message>
    <message id="ui_defaults">
        <source></source>
        <translation>&amp;Defaults</translation>
    </message>
    <message id="ui_menu_file">
        <source></source>
        <translation>&amp;File</translation>
    </message>
    <message id="ui_menu_export">
        <source></source>
        <translation>&amp;Export run log…</translation>
    </message>
    <message id="ui_menu_quit">
        <source></source>
        <translation>&amp;Quit</translation>
    </message>
    <message id="ui_export_title">
        <source></source>
        <translation>Export run log</translation>
    </message>
    <message id="ui_export_logs">
        <source></source>
        <translation>&amp;Run logs, newest first:</translation>
    </message>
    <message id="ui_export_none">
        <source></source>
        <translation>There are no run logs yet. Live data writes one for every run while Log runs is on in Preferences.</translation>
    </message>
    <message id="ui_export_log">
        <source></source>
        <translation>Run log</translation>
    </message>
    <message id="ui_export_size">
        <source></source>
        <translation>Size</translation>
    </message>
    <message id="ui_export_written">
        <source></source>
        <translation>Written</translation>
    </message>
    <message id="ui_export_csv">
        <source></source>
        <translation>Table for a &amp;spreadsheet (.csv)</translation>
    </message>
    <message id="ui_export_txt">
        <source></source>
        <translation>&amp;Text (.txt)</translation>
    </message>
    <message id="ui_export_time">
        <source></source>
        <translation>Ti&amp;me of each round first, in seconds</translation>
    </message>
    <message id="ui_export_start">
        <source></source>
        <translation>&amp;Export</translation>
    </message>
    <message id="ui_export_open_folder">
        <source></source>
        <translation>&amp;Open folder</translation>
    </message>
    <message id="ui_export_close">
        <source></source>
        <translation>&amp;Close</translation>
    </message>
    <message id="ui_export_progress">
        <source></source>
        <translation>Progress of the export</translation>
    </message>
    <message id="ui_export_done">
        <source></source>
        <translation>Exported %1 rows to %2</translation>
    </message>
    <message id="bt_chooser_title">
        <source></source>
        <translation>Choose a Bluetooth adapter</translation>
    </message>
    <message id="bt_chooser_sentence">
        <source></source>
        <translation>Plug the adapter into the car's diagnostic port, switch the ignition on, and choose it in the list.</translation>
    </message>
    <message id="bt_devices">
        <source></source>
        <translation>Bluetooth devices</translation>
    </message>
    <message id="bt_col_name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="bt_col_address">
        <source></source>
        <translation>Address</translation>
    </message>
    <message id="bt_col_paired">
        <source></source>
        <translation>Paired</translation>
    </message>
    <message id="bt_col_signal">
        <source></source>
        <translation>Signal</translation>
    </message>
    <message id="bt_col_serial">
        <source></source>
        <translation>Serial port</translation>
    </message>
    <message id="bt_yes">
        <source></source>
        <translation>yes</translation>
    </message>
    <message id="bt_no">
        <source></source>
        <translation>no</translation>
    </message>
    <message id="bt_when_connecting">
        <source></source>
        <translation>not known yet</translation>
    </message>
    <message id="bt_searching">
        <source></source>
        <translation>Searching for Bluetooth devices …</translation>
    </message>
    <message id="bt_search_over">
        <source></source>
        <translation>The search is over. Is the adapter missing? Unplug it, plug it in again, switch the ignition on, and search again.</translation>
    </message>
    <message id="bt_none_found">
        <source></source>
        <translation>No Bluetooth device was found.

Is the adapter plugged in and the ignition on? Is a phone connected to it? Then search again.</translation>
    </message>
    <message id="bt_connecting">
        <source></source>
        <translation>Connecting to %1 … If your desktop asks for a PIN, most adapters use 1234 or 0000.</translation>
    </message>
    <message id="bt_search_again">
        <source></source>
        <translation>&amp;Search again</translation>
    </message>
    <message id="bt_cancel">
        <source></source>
        <translation>C&amp;ancel</translation>
    </message>
    <message id="bt_connect">
        <source></source>
        <translation>&amp;Connect</translation>
    </message>
    <message id="bt_service_missing">
        <source></source>
        <translation>The Bluetooth service is not running on this computer.

Install the package bluez if it is missing, and start the service:
sudo systemctl enable --now bluetooth</translation>
    </message>
    <message id="bt_no_adapter">
        <source></source>
        <translation>This computer has no Bluetooth adapter that works.

Plug in a Bluetooth stick, or use a Wi-Fi diagnostic adapter.</translation>
    </message>
    <message id="bt_switched_off">
        <source></source>
        <translation>Bluetooth is switched off.

Switch it on in your desktop's settings, or with:
bluetoothctl power on</translation>
    </message>
    <message id="bt_not_permitted">
        <source></source>
        <translation>You may not use Bluetooth on this computer.

Log in at the computer itself, or ask its administrator to add you to the group bluetooth.</translation>
    </message>
    <message id="bt_in_use">
        <source></source>
        <translation>%1 is in use by another program on this computer. Close that program and try again.</translation>
    </message>
    <message id="bt_out_of_reach">
        <source></source>
        <translation>%1 does not answer. Is it plugged in, the ignition on, and the car near?</translation>
    </message>
    <message id="bt_no_serial_port">
        <source></source>
        <translation>%1 offers no serial port, so it is no adapter that Kestrom can talk to. Choose another device.</translation>
    </message>
    <message id="bt_refused">
        <source></source>
        <translation>%1 refused the connection. Does a phone or another computer use it? Unplug the adapter, plug it in again, and try once more.</translation>
    </message>
    <message id="bt_pairing_failed">
        <source></source>
        <translation>Pairing with %1 failed. Try again and confirm what your desktop asks; most adapters use the PIN 1234 or 0000.</translation>
    </message>
    <message id="bt_other_problem">
        <source></source>
        <translation>The connection to %1 failed. Unplug the adapter, plug it in again, and try once more.</translation>
    </message>
    <message id="bt_no_chooser">
        <source></source>
        <translation>No Bluetooth adapter was chosen. Name one with --bluetooth ADDRESS (kestrom bluetooth-scan lists those in reach) or a Wi-Fi adapter with --adapter HOST:PORT; --demo needs neither.</translation>
    </message>
    <message id="ui_menu_about">
        <source></source>
        <translation>&amp;About Kestrom</translation>
    </message>
    <message id="ui_about">
        <source></source>
        <translation>Reads a car's on-board diagnostics (OBD-II) through an ELM327-type adapter: trouble codes, readiness, live data, run logs and a console.

Free software under the MIT licence.
© 2026 The Kestrom developers</translation>
    </message>
    <message id="ui_about_close">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="ui_run_log">
        <source></source>
        <translation>Log Run</translation>
    </message>
    <message id="ui_run_fuel">
        <source></source>
        <translation>Fuel consumption</translation>
    </message>
    <message id="ui_run_sensors">
        <source></source>
        <translation>O2 Diags/Sampling</translation>
    </message>
    <message id="ui_run_boost">
        <source></source>
        <translation>Boost</translation>
    </message>
    <message id="ui_unread">
        <source></source>
        <translation>Not everything that the car sent could be read: %1. Trouble codes may be missing: read again.</translation>
    </message>
    <message id="unread_adapter_notice">
        <source></source>
        <translation>the adapter said %1</translation>
    </message>
    <message id="unread_damaged_line">
        <source></source>
        <translation>a damaged line</translation>
    </message>
    <message id="unread_not_understood">
        <source></source>
        <translation>a line that is not an answer</translation>
    </message>
    <message id="unread_broken_off">
        <source></source>
        <translation>an answer that broke off</translation>
    </message>
    <message id="unread_too_long">
        <source></source>
        <translation>an answer followed by data that does not belong to it</translation>
    </message>
    <message id="unread_frames_unclear">
        <source></source>
        <translation>frames that do not fit together</translation>
    </message>
    <message id="unread_refused">
        <source></source>
        <translation>a control unit refused the request (%1)</translation>
    </message>
    <message id="unread_no_answer">
        <source></source>
        <translation>the car did not answer</translation>
    </message>
    <message id="unread_left_out">
        <source></source>
        <translation>the car also sent %1, which is not in the list</translation>
    </message>
    <message id="ui_more_button">
        <source></source>
        <translation>More parameters...</translation>
    </message>
    <message id="ui_more_hint">
        <source></source>
        <translation>Choose what a log run asks for in addition to the parameters chosen in Preferences</translation>
    </message>
    <message id="ui_more_title">
        <source></source>
        <translation>More parameters</translation>
    </message>
    <message id="ui_more_search">
        <source></source>
        <translation>Search by name or PID</translation>
    </message>
    <message id="ui_more_name">
        <source></source>
        <translation>Parameter</translation>
    </message>
    <message id="ui_more_unit">
        <source></source>
        <translation>Unit</translation>
    </message>
    <message id="ui_more_support">
        <source></source>
        <translation>This car</translation>
    </message>
    <message id="ui_more_yes">
        <source></source>
        <translation>supported</translation>
    </message>
    <message id="ui_more_no">
        <source></source>
        <translation>not supported</translation>
    </message>
    <message id="ui_more_in_prefs">
        <source></source>
        <translation>Chosen in the preferences</translation>
    </message>
    <message id="ui_more_ask">
        <source></source>
        <translation>&amp;Ask the car</translation>
    </message>
    <message id="ui_more_use">
        <source></source>
        <translation>&amp;Use these</translation>
    </message>
    <message id="ui_more_cancel">
        <source></source>
        <translation>&amp;Cancel</translation>
    </message>
    <message id="ui_more_unknown">
        <source></source>
        <translation>What this car supports is not known yet.</translation>
    </message>
    <message id="ui_more_asking">
        <source></source>
        <translation>Asking what this car supports</translation>
    </message>
    <message id="ui_more_told">
        <source></source>
        <translation>The car has reported what it supports</translation>
    </message>
    <message id="ui_more_untold">
        <source></source>
        <translation>The car did not report what it supports</translation>
    </message>
    <message id="ui_more_known">
        <source></source>
        <translation>This car supports %d parameters.</translation>
    </message>
    <message id="ui_menu_lookup">
        <source></source>
        <translation>&amp;Look up a code...</translation>
    </message>
    <message id="ui_lookup_title">
        <source></source>
        <translation>Look up a code</translation>
    </message>
    <message id="ui_lookup_search">
        <source></source>
        <translation>Code, or words of its description</translation>
    </message>
    <message id="ui_lookup_none">
        <source></source>
        <translation>Nothing found</translation>
    </message>
    <message id="ui_lookup_found">
        <source></source>
        <translation>Found: %d</translation>
    </message>
    <message id="ui_lookup_close">
        <source></source>
        <translation>&amp;Close</translation>
    </message>
</context>
</TS>

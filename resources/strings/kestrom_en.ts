<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="KS_help">
        <source></source>
        <translation>Kestrom reads your car's on-board diagnostics (OBD-II) through an ELM327-type adapter.

Connect: plug the adapter into the car's diagnostic port, usually below the steering wheel, and switch the ignition on. For a Wi-Fi adapter, join the adapter's own wireless network first, then choose Wi-Fi in Preferences and enter its address and port (most use 192.168.0.10 and 35000). For a Bluetooth adapter, choose Bluetooth; the first task you start asks which device to use. For a cable, choose its port. Wi-Fi and cables are fast, Bluetooth is slower, Bluetooth Low Energy slowest; the tooltips of the choices say what each needs, and what to do when it fails.

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
    <message id="no_reply_from_car_MSG_serial">
        <source></source>
        <translation>The adapter works, but the car did not answer.

Please check:
• The ignition is on, or the engine is running.
• The adapter sits firmly in the diagnostic port.
• No other program uses the adapter at the same time.
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
    <message id="serial_no_answer_yet_MSG">
        <source></source>
        <translation>The adapter has not answered yet. Check the cable and the port in the preferences.</translation>
    </message>
    <message id="serial_not_chosen">
        <source></source>
        <translation>No port is chosen. Plug the adapter in, and choose its port in the preferences.</translation>
    </message>
    <message id="serial_not_there">
        <source></source>
        <translation>%1 is not there. Plug the adapter in, or choose another port in the preferences.</translation>
    </message>
    <message id="serial_taken">
        <source></source>
        <translation>%1 has gone: another service has taken the adapter's cable. Usually it is brltty, for Braille displays. If you do not need it, type “sudo apt remove brltty” in a terminal and plug the adapter in again.</translation>
    </message>
    <message id="serial_not_permitted">
        <source></source>
        <translation>You may not use %1: it belongs to the group %2. Type “sudo usermod -a -G %2 $USER” in a terminal, then log out and in again.</translation>
    </message>
    <message id="serial_busy">
        <source></source>
        <translation>Another program has %1 open. Close it, and try again. ModemManager releases it by itself within half a minute.</translation>
    </message>
    <message id="serial_silent">
        <source></source>
        <translation>No adapter answers at %1 (tried: %2 baud). Check that it is the adapter's port, that the adapter is in the diagnostic port, and the speed in the preferences.</translation>
    </message>
    <message id="serial_other">
        <source></source>
        <translation>%1 cannot be used: %2</translation>
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
    <message id="ui_start_serial">
        <source></source>
        <translation>&amp;USB or serial cable</translation>
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
        <translation>Fast</translation>
    </message>
    <message id="ui_fast_hint">
        <source></source>
        <translation>Requests several values at once and waits no longer than needed, as far as the adapter and the car prove able to. Some cars do not like it: switch it off if lamps come on or the engine runs unevenly. Takes effect when a run is next started.</translation>
    </message>
    <message id="ui_fast_no_use">
        <source></source>
        <translation>This car cannot answer any faster.</translation>
    </message>
    <message id="ui_fast_rate">
        <source></source>
        <translation>%1 values/s</translation>
    </message>
    <message id="ui_fast_rate_hint">
        <source></source>
        <translation>Values per second, and how they are requested</translation>
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
        <translation>Replies did not match: fast sampling continues more carefully</translation>
    </message>
    <message id="ui_fast_given_up">
        <source></source>
        <translation>Replies did not match: sampling continues one value at a time</translation>
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
    <message id="ui_serial">
        <source></source>
        <translation>U&amp;SB or serial cable</translation>
    </message>
    <message id="ui_serial_speed">
        <source></source>
        <translation>Speed:</translation>
    </message>
    <message id="ui_serial_auto">
        <source></source>
        <translation>automatic</translation>
    </message>
    <message id="ui_serial_absent">
        <source></source>
        <translation>%1 (not plugged in)</translation>
    </message>
    <message id="ui_serial_none">
        <source></source>
        <translation>none is plugged in</translation>
    </message>
    <message id="ui_kind_bluetooth">
        <source></source>
        <translation>Needs only the adapter; pair it here or in the desktop's settings. Speed: moderate, lower with Low Energy. When it fails: unplug it, plug it in, and make sure that no phone is connected to it.</translation>
    </message>
    <message id="ui_kind_wifi">
        <source></source>
        <translation>Needs this computer in the adapter's own wireless network, often without internet. Speed: good. When it fails: join that network again, check address and port.</translation>
    </message>
    <message id="ui_kind_serial">
        <source></source>
        <translation>Needs a free port and the right to use it. Speed: good, at most that of the cable. When it fails: plug the cable in again; the message says who has the port or which group may use it.</translation>
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
    <message id="bt_col_kind">
        <source></source>
        <translation>Kind</translation>
    </message>
    <message id="bt_classic">
        <source></source>
        <translation>Classic</translation>
    </message>
    <message id="bt_low_energy">
        <source></source>
        <translation>Low Energy</translation>
    </message>
    <message id="bt_both_kinds">
        <source></source>
        <translation>both</translation>
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

Plug in a Bluetooth stick, or use a diagnostic adapter with Wi-Fi or a cable.</translation>
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
        <translation>No Bluetooth adapter was chosen. Name one with --bluetooth ADDRESS (kestrom bluetooth-scan lists those in range), a Wi-Fi adapter with --adapter HOST:PORT, or a cable with --adapter /dev/ttyUSB0; --demo needs none.</translation>
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
    <message id="unread_silent_unit">
        <source></source>
        <translation>a control unit did not answer (%1)</translation>
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
    <message id="report_title">
        <source></source>
        <translation>Vehicle report</translation>
    </message>
    <message id="report_compare_title">
        <source></source>
        <translation>Two reports compared</translation>
    </message>
    <message id="report_plate">
        <source></source>
        <translation>Plate</translation>
    </message>
    <message id="report_owner">
        <source></source>
        <translation>Owner</translation>
    </message>
    <message id="report_odometer">
        <source></source>
        <translation>Odometer as read by hand</translation>
    </message>
    <message id="report_signature">
        <source></source>
        <translation>Date, signature</translation>
    </message>
    <message id="report_page">
        <source></source>
        <translation>Page %1 of %2</translation>
    </message>
    <message id="report_foot">
        <source></source>
        <translation>Read over generic OBD: engine and emissions only; no airbag, brakes or body.</translation>
    </message>
    <message id="report_fact_lamp">
        <source></source>
        <translation>Engine lamp (MIL)</translation>
    </message>
    <message id="report_fact_codes">
        <source></source>
        <translation>Trouble codes</translation>
    </message>
    <message id="report_fact_readiness">
        <source></source>
        <translation>Readiness</translation>
    </message>
    <message id="report_on">
        <source></source>
        <translation>ON</translation>
    </message>
    <message id="report_off">
        <source></source>
        <translation>off</translation>
    </message>
    <message id="report_counts">
        <source></source>
        <translation>Stored: %1; pending: %2; permanent: %3</translation>
    </message>
    <message id="report_at_least">
        <source></source>
        <translation>at least %1</translation>
    </message>
    <message id="report_ready">
        <source></source>
        <translation>%1 of %2 complete</translation>
    </message>
    <message id="report_not_told">
        <source></source>
        <translation>not reported</translation>
    </message>
    <message id="report_refused">
        <source></source>
        <translation>refused (%1)</translation>
    </message>
    <message id="report_unread">
        <source></source>
        <translation>could not be read</translation>
    </message>
    <message id="report_not_asked">
        <source></source>
        <translation>not asked</translation>
    </message>
    <message id="report_none">
        <source></source>
        <translation>none</translation>
    </message>
    <message id="report_section_vehicle">
        <source></source>
        <translation>Vehicle</translation>
    </message>
    <message id="report_section_readings">
        <source></source>
        <translation>At the time of reading</translation>
    </message>
    <message id="report_section_adapter">
        <source></source>
        <translation>Adapter and bus</translation>
    </message>
    <message id="report_section_units">
        <source></source>
        <translation>Control units</translation>
    </message>
    <message id="report_section_codes">
        <source></source>
        <translation>Trouble codes</translation>
    </message>
    <message id="report_section_frames">
        <source></source>
        <translation>Freeze frames</translation>
    </message>
    <message id="report_section_readiness">
        <source></source>
        <translation>Readiness</translation>
    </message>
    <message id="report_section_cleared">
        <source></source>
        <translation>Since the codes were cleared</translation>
    </message>
    <message id="report_section_tests">
        <source></source>
        <translation>Test results</translation>
    </message>
    <message id="report_section_counters">
        <source></source>
        <translation>In-use counters</translation>
    </message>
    <message id="report_section_unread">
        <source></source>
        <translation>What was not read, and why</translation>
    </message>
    <message id="report_section_changes">
        <source></source>
        <translation>What came and went</translation>
    </message>
    <message id="report_vin">
        <source></source>
        <translation>Vehicle identification number (VIN)</translation>
    </message>
    <message id="report_vin_odd">
        <source></source>
        <translation>%1 (not a standard number: %2)</translation>
    </message>
    <message id="report_vins_differ">
        <source></source>
        <translation>The units report different numbers: %1</translation>
    </message>
    <message id="report_read_at">
        <source></source>
        <translation>Read on</translation>
    </message>
    <message id="report_seconds">
        <source></source>
        <translation>Time taken</translation>
    </message>
    <message id="report_volts">
        <source></source>
        <translation>Battery, by the adapter</translation>
    </message>
    <message id="report_engine_running">
        <source></source>
        <translation>Engine running</translation>
    </message>
    <message id="report_yes">
        <source></source>
        <translation>yes</translation>
    </message>
    <message id="report_no">
        <source></source>
        <translation>no</translation>
    </message>
    <message id="report_adapter">
        <source></source>
        <translation>Adapter</translation>
    </message>
    <message id="report_protocol">
        <source></source>
        <translation>Protocol</translation>
    </message>
    <message id="report_answered">
        <source></source>
        <translation>Units that answered</translation>
    </message>
    <message id="report_col_unit">
        <source></source>
        <translation>Unit</translation>
    </message>
    <message id="report_col_address">
        <source></source>
        <translation>Address</translation>
    </message>
    <message id="report_col_name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="report_col_calibration">
        <source></source>
        <translation>Calibration</translation>
    </message>
    <message id="report_col_verification">
        <source></source>
        <translation>Verification number (CVN)</translation>
    </message>
    <message id="report_col_code">
        <source></source>
        <translation>Code</translation>
    </message>
    <message id="report_col_meaning">
        <source></source>
        <translation>Meaning</translation>
    </message>
    <message id="report_col_stored">
        <source></source>
        <translation>Stored</translation>
    </message>
    <message id="report_col_pending">
        <source></source>
        <translation>Pending</translation>
    </message>
    <message id="report_col_permanent">
        <source></source>
        <translation>Permanent</translation>
    </message>
    <message id="report_col_frame">
        <source></source>
        <translation>Frame</translation>
    </message>
    <message id="report_col_value">
        <source></source>
        <translation>Value</translation>
    </message>
    <message id="report_col_monitor">
        <source></source>
        <translation>Monitor</translation>
    </message>
    <message id="report_col_state">
        <source></source>
        <translation>State</translation>
    </message>
    <message id="report_col_drive">
        <source></source>
        <translation>This drive</translation>
    </message>
    <message id="report_col_test">
        <source></source>
        <translation>Test</translation>
    </message>
    <message id="report_col_lowest">
        <source></source>
        <translation>Min.</translation>
    </message>
    <message id="report_col_highest">
        <source></source>
        <translation>Max.</translation>
    </message>
    <message id="report_col_result">
        <source></source>
        <translation>Result</translation>
    </message>
    <message id="report_col_near">
        <source></source>
        <translation>Limit used</translation>
    </message>
    <message id="report_col_done">
        <source></source>
        <translation>Done</translation>
    </message>
    <message id="report_col_conditions">
        <source></source>
        <translation>Conditions met</translation>
    </message>
    <message id="report_col_ratio">
        <source></source>
        <translation>Ratio</translation>
    </message>
    <message id="report_col_what">
        <source></source>
        <translation>What</translation>
    </message>
    <message id="report_col_why">
        <source></source>
        <translation>Why</translation>
    </message>
    <message id="report_col_before">
        <source></source>
        <translation>Before</translation>
    </message>
    <message id="report_col_after">
        <source></source>
        <translation>After</translation>
    </message>
    <message id="report_complete">
        <source></source>
        <translation>complete</translation>
    </message>
    <message id="report_not_complete">
        <source></source>
        <translation>not complete</translation>
    </message>
    <message id="report_not_supported">
        <source></source>
        <translation>Not supported: %1</translation>
    </message>
    <message id="report_spark">
        <source></source>
        <translation>petrol set (spark ignition)</translation>
    </message>
    <message id="report_compression">
        <source></source>
        <translation>diesel set (compression ignition)</translation>
    </message>
    <message id="report_failed">
        <source></source>
        <translation>FAILED</translation>
    </message>
    <message id="report_passed">
        <source></source>
        <translation>passed</translation>
    </message>
    <message id="report_no_result">
        <source></source>
        <translation>no result yet</translation>
    </message>
    <message id="report_legend">
        <source></source>
        <translation>Pending: seen on this or the last drive. Stored: confirmed. Permanent: stays after clearing until its test has passed.</translation>
    </message>
    <message id="report_mismatch">
        <source></source>
        <translation>%1: its status counts %2 stored codes, its list holds %3.</translation>
    </message>
    <message id="report_cylinders">
        <source></source>
        <translation>Cylinders are numbered as the unit counts them.</translation>
    </message>
    <message id="report_no_o2_tests">
        <source></source>
        <translation>Before CAN, O2 sensor tests of service 05 are not read.</translation>
    </message>
    <message id="report_unknown_code">
        <source></source>
        <translation>not in the list of codes</translation>
    </message>
    <message id="report_why_not_listed">
        <source></source>
        <translation>this unit does not offer it</translation>
    </message>
    <message id="report_why_listed">
        <source></source>
        <translation>no answer, although the unit lists it</translation>
    </message>
    <message id="report_why_no_answer">
        <source></source>
        <translation>no answer</translation>
    </message>
    <message id="report_why_time_out">
        <source></source>
        <translation>no reply in time</translation>
    </message>
    <message id="report_why_incomplete">
        <source></source>
        <translation>parts of the answer are missing</translation>
    </message>
    <message id="report_why_ended">
        <source></source>
        <translation>the reading had ended</translation>
    </message>
    <message id="report_partly">
        <source></source>
        <translation>a part of it could not be read</translation>
    </message>
    <message id="report_request">
        <source></source>
        <translation>request %1</translation>
    </message>
    <message id="report_end_cancelled">
        <source></source>
        <translation>The reading was cancelled: what follows is what was read until then.</translation>
    </message>
    <message id="report_end_time_up">
        <source></source>
        <translation>The reading took too long and was ended: what follows is what was read until then.</translation>
    </message>
    <message id="report_end_adapter_silent">
        <source></source>
        <translation>The adapter fell silent: what follows is what was read until then.</translation>
    </message>
    <message id="report_end_link_lost">
        <source></source>
        <translation>The connection broke: what follows is what was read until then.</translation>
    </message>
    <message id="report_part_status">
        <source></source>
        <translation>Lamp and readiness</translation>
    </message>
    <message id="report_part_this_drive">
        <source></source>
        <translation>Readiness of this drive</translation>
    </message>
    <message id="report_part_stored">
        <source></source>
        <translation>Stored codes</translation>
    </message>
    <message id="report_part_pending">
        <source></source>
        <translation>Pending codes</translation>
    </message>
    <message id="report_part_permanent">
        <source></source>
        <translation>Permanent codes</translation>
    </message>
    <message id="report_part_frame">
        <source></source>
        <translation>Freeze frame</translation>
    </message>
    <message id="report_part_vin">
        <source></source>
        <translation>VIN</translation>
    </message>
    <message id="report_part_unit_name">
        <source></source>
        <translation>Unit name</translation>
    </message>
    <message id="report_part_calibrations">
        <source></source>
        <translation>Calibrations</translation>
    </message>
    <message id="report_part_verification_numbers">
        <source></source>
        <translation>Verification numbers</translation>
    </message>
    <message id="report_part_counters">
        <source></source>
        <translation>In-use counters</translation>
    </message>
    <message id="report_part_tests">
        <source></source>
        <translation>Test results</translation>
    </message>
    <message id="report_nothing_unread">
        <source></source>
        <translation>Everything that was requested was reported.</translation>
    </message>
    <message id="report_other_car">
        <source></source>
        <translation>These reports are of two different cars: %1 and %2.</translation>
    </message>
    <message id="report_no_changes">
        <source></source>
        <translation>Nothing that both reports contain has changed.</translation>
    </message>
    <message id="ui_rail_report">
        <source></source>
        <translation>Report</translation>
    </message>
    <message id="ui_report_title">
        <source></source>
        <translation>Vehicle report</translation>
    </message>
    <message id="ui_report_read">
        <source></source>
        <translation>Rea&amp;d report</translation>
    </message>
    <message id="ui_report_cancel">
        <source></source>
        <translation>C&amp;ancel</translation>
    </message>
    <message id="ui_report_save">
        <source></source>
        <translation>&amp;Save as…</translation>
    </message>
    <message id="ui_report_print">
        <source></source>
        <translation>Prin&amp;t…</translation>
    </message>
    <message id="ui_report_copy">
        <source></source>
        <translation>Cop&amp;y</translation>
    </message>
    <message id="ui_report_open">
        <source></source>
        <translation>Open sa&amp;ved…</translation>
    </message>
    <message id="ui_report_compare">
        <source></source>
        <translation>Co&amp;mpare…</translation>
    </message>
    <message id="ui_report_hide_vin">
        <source></source>
        <translation>H&amp;ide the end of the VIN</translation>
    </message>
    <message id="ui_report_hide_vin_hint">
        <source></source>
        <translation>Its last six characters are hidden: on the sheet, and in what is saved, printed or copied.</translation>
    </message>
    <message id="ui_report_empty">
        <source></source>
        <translation>Press Read report: every control unit is asked for codes, freeze frames, readiness, test results and identity.</translation>
    </message>
    <message id="ui_report_save_title">
        <source></source>
        <translation>Save report</translation>
    </message>
    <message id="ui_report_open_title">
        <source></source>
        <translation>Open report</translation>
    </message>
    <message id="ui_report_compare_title">
        <source></source>
        <translation>Earlier report to compare with</translation>
    </message>
    <message id="ui_report_not_saved">
        <source></source>
        <translation>The report was not saved.</translation>
    </message>
    <message id="ui_report_saved">
        <source></source>
        <translation>Saved: %1</translation>
    </message>
    <message id="ui_report_copied">
        <source></source>
        <translation>The report is in the clipboard.</translation>
    </message>
    <message id="ui_report_not_opened">
        <source></source>
        <translation>This file cannot be opened as a report.</translation>
    </message>
    <message id="report_starting">
        <source></source>
        <translation>Initialising the adapter</translation>
    </message>
    <message id="report_progress">
        <source></source>
        <translation>Reading %1 (%2 of %3)</translation>
    </message>
    <message id="report_topic_adapter">
        <source></source>
        <translation>adapter data</translation>
    </message>
    <message id="report_topic_supported">
        <source></source>
        <translation>supported data</translation>
    </message>
    <message id="report_topic_status">
        <source></source>
        <translation>lamp and readiness</translation>
    </message>
    <message id="report_topic_codes">
        <source></source>
        <translation>trouble codes</translation>
    </message>
    <message id="report_topic_readings">
        <source></source>
        <translation>readings</translation>
    </message>
    <message id="report_topic_frames">
        <source></source>
        <translation>freeze frames</translation>
    </message>
    <message id="report_topic_identity">
        <source></source>
        <translation>identity</translation>
    </message>
    <message id="report_topic_tests">
        <source></source>
        <translation>test results</translation>
    </message>
    <message id="report_done">
        <source></source>
        <translation>The report is complete.</translation>
    </message>
    <message id="report_done_partly">
        <source></source>
        <translation>The report has been read. What is missing is listed at its end.</translation>
    </message>
    <message id="report_nothing_told">
        <source></source>
        <translation>The car reported nothing.</translation>
    </message>
    <message id="report_cancelled">
        <source></source>
        <translation>The reading was cancelled.</translation>
    </message>
    <message id="ui_copy_rows">
        <source></source>
        <translation>&amp;Copy rows</translation>
    </message>
    <message id="ui_codes_to_report">
        <source></source>
        <translation>&amp;Save or print: vehicle report</translation>
    </message>
    <message id="ui_report_offer">
        <source></source>
        <translation>Offer it &amp;before clearing</translation>
    </message>
    <message id="ui_report_offer_hint">
        <source></source>
        <translation>Before codes are cleared, a report that was read and not saved is offered.</translation>
    </message>
    <message id="ui_report_before_clear">
        <source></source>
        <translation>Save the report before clearing?</translation>
    </message>
    <message id="ui_report_before_clear_hint">
        <source></source>
        <translation>Clearing also erases freeze frames and test results. The report contains them.</translation>
    </message>
    <message id="ui_report_go_on">
        <source></source>
        <translation>Go on without saving</translation>
    </message>
    <message id="report_none_so_far">
        <source></source>
        <translation>none, as far as reported</translation>
    </message>
    <message id="ui_report_save_first">
        <source></source>
        <translation>Save as…</translation>
    </message>
    <message id="ui_report_text_file">
        <source></source>
        <translation>Text</translation>
    </message>
    <message id="report_off_so_far">
        <source></source>
        <translation>off, as far as reported</translation>
    </message>
    <message id="report_why_put_off">
        <source></source>
        <translation>the unit asked to wait and did not answer in time</translation>
    </message>
    <message id="ui_report_opened">
        <source></source>
        <translation>Opened: %1</translation>
    </message>
    <message id="ui_code_from">
        <source></source>
        <translation>From control unit: %1</translation>
    </message>
    <message id="report_name_Misfire">
        <source></source>
        <translation>Misfire</translation>
    </message>
    <message id="report_name_Fuel system">
        <source></source>
        <translation>Fuel system</translation>
    </message>
    <message id="report_name_Comprehensive components">
        <source></source>
        <translation>Comprehensive components</translation>
    </message>
    <message id="report_name_Catalyst">
        <source></source>
        <translation>Catalyst</translation>
    </message>
    <message id="report_name_Heated catalyst">
        <source></source>
        <translation>Heated catalyst</translation>
    </message>
    <message id="report_name_Evaporative system">
        <source></source>
        <translation>Evaporative system</translation>
    </message>
    <message id="report_name_Secondary air system">
        <source></source>
        <translation>Secondary air system</translation>
    </message>
    <message id="report_name_A/C refrigerant / petrol particulate filter">
        <source></source>
        <translation>A/C refrigerant / petrol particulate filter</translation>
    </message>
    <message id="report_name_O2 sensor">
        <source></source>
        <translation>O2 sensor</translation>
    </message>
    <message id="report_name_O2 sensor heater">
        <source></source>
        <translation>O2 sensor heater</translation>
    </message>
    <message id="report_name_EGR/VVT system">
        <source></source>
        <translation>EGR/VVT system</translation>
    </message>
    <message id="report_name_NMHC catalyst">
        <source></source>
        <translation>NMHC catalyst</translation>
    </message>
    <message id="report_name_NOx/SCR aftertreatment">
        <source></source>
        <translation>NOx/SCR aftertreatment</translation>
    </message>
    <message id="report_name_Boost pressure">
        <source></source>
        <translation>Boost pressure</translation>
    </message>
    <message id="report_name_Exhaust gas sensor">
        <source></source>
        <translation>Exhaust gas sensor</translation>
    </message>
    <message id="report_name_Particulate filter">
        <source></source>
        <translation>Particulate filter</translation>
    </message>
    <message id="report_name_OBD monitoring conditions met">
        <source></source>
        <translation>OBD monitoring conditions met</translation>
    </message>
    <message id="report_name_Ignition cycles">
        <source></source>
        <translation>Ignition cycles</translation>
    </message>
    <message id="report_name_Catalyst, bank 1">
        <source></source>
        <translation>Catalyst, bank 1</translation>
    </message>
    <message id="report_name_Catalyst, bank 2">
        <source></source>
        <translation>Catalyst, bank 2</translation>
    </message>
    <message id="report_name_O2 sensor, bank 1">
        <source></source>
        <translation>O2 sensor, bank 1</translation>
    </message>
    <message id="report_name_O2 sensor, bank 2">
        <source></source>
        <translation>O2 sensor, bank 2</translation>
    </message>
    <message id="report_name_Secondary O2 sensor, bank 1">
        <source></source>
        <translation>Secondary O2 sensor, bank 1</translation>
    </message>
    <message id="report_name_Secondary O2 sensor, bank 2">
        <source></source>
        <translation>Secondary O2 sensor, bank 2</translation>
    </message>
    <message id="report_name_NOx catalyst">
        <source></source>
        <translation>NOx catalyst</translation>
    </message>
    <message id="report_name_NOx adsorber">
        <source></source>
        <translation>NOx adsorber</translation>
    </message>
</context>
</TS>

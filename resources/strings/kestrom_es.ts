<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="KS_help">
        <source></source>
        <translation>Kestrom lee el diagnóstico de a bordo (OBD-II) de su coche mediante un adaptador de tipo ELM327.

Conexión: enchufe el adaptador en la toma de diagnóstico del coche, normalmente bajo el volante, y dé el contacto. Con un adaptador Wi-Fi, conecte primero este equipo a la red inalámbrica del adaptador, elija después Wi-Fi en las preferencias y escriba su dirección y su puerto (casi siempre 192.168.0.10 y 35000). Con un adaptador Bluetooth, elija Bluetooth; la primera tarea que inicie preguntará qué dispositivo usar. Con un cable, elija su puerto. Wi-Fi y los cables son rápidos, Bluetooth lo es menos y Bluetooth Low Energy el que menos; las ayudas emergentes de esas opciones dicen qué necesita cada una y qué hacer si falla.

Códigos de avería: «Leer códigos» muestra los códigos guardados con su significado, el testigo de avería y el estado de los monitores. «Borrar códigos» borra los códigos, apaga el testigo y pone a cero los monitores; hágalo con el motor parado y solo después de anotar los códigos.

Estado de los monitores: OK, la comprobación está completa; X, aún no lo está (no es una avería: se hace durante la marcha); N/A, este coche no tiene este monitor. Si un diésel tiene otro monitor en el mismo lugar, el nombre indica los dos. Los nombres y las descripciones siguen por ahora en inglés.

Datos en vivo: elija el tipo de sesión y pulse el botón de inicio. Cada parámetro tiene un gráfico pequeño; haga clic en él para verlo en grande y en el indicador, y mantenga pulsada la tecla Ctrl para elegir otro para el segundo indicador. La lista de parámetros, las unidades y el idioma están en las preferencias.

Registros: con «Registrar las sesiones» marcado en las preferencias, cada sesión se guarda en su propio archivo de la carpeta «loggies»; el texto de ayuda de Registros indica dónde está, y Archivo &gt; Exportar registro… los exporta como tablas.

Experto: escriba un comando del adaptador (AT I) o una petición (01 0C) y lea la respuesta en bruto.

¿No hay respuesta? Compruebe el contacto, el enchufe y la conexión inalámbrica, y cierre otros programas que usen el adaptador.</translation>
    </message>
    <message id="no_reply_from_car_MSG">
        <source></source>
        <translation>El coche no ha respondido. Dé el contacto e inténtelo de nuevo.</translation>
    </message>
    <message id="no_reply_from_car_MSG_BT">
        <source></source>
        <translation>El adaptador funciona, pero el coche no ha respondido.

Compruebe que:
• El contacto está dado o el motor está en marcha.
• El adaptador está bien enchufado en la toma de diagnóstico.
• El adaptador elegido en la lista de Bluetooth es el de este coche.
• Ningún teléfono ni otro programa usa el adaptador al mismo tiempo.
• El coche admite OBD-II.</translation>
    </message>
    <message id="no_reply_from_car_MSG_TCP">
        <source></source>
        <translation>El adaptador funciona, pero el coche no ha respondido.

Compruebe que:
• El contacto está dado o el motor está en marcha.
• El adaptador está bien enchufado en la toma de diagnóstico.
• Este equipo está conectado a la red Wi-Fi del adaptador de este coche.
• Ningún teléfono ni otro programa usa el adaptador al mismo tiempo.
• El coche admite OBD-II.</translation>
    </message>
    <message id="no_reply_from_car_MSG_serial">
        <source></source>
        <translation>El adaptador funciona, pero el coche no ha respondido.

Compruebe que:
• El contacto está dado o el motor está en marcha.
• El adaptador está bien enchufado en la toma de diagnóstico.
• Ningún otro programa usa el adaptador al mismo tiempo.
• El coche admite OBD-II.</translation>
    </message>
    <message id="init_OBD_error_MSG">
        <source></source>
        <translation>El adaptador no ha podido iniciar el bus de diagnóstico del coche. Quite el contacto y vuelva a darlo, compruebe que el adaptador está bien enchufado en la toma de diagnóstico e inténtelo otra vez.</translation>
    </message>
    <message id="blank_input_MSG">
        <source></source>
        <translation>Escriba antes un comando, por ejemplo AT I o 01 0C.</translation>
    </message>
    <message id="FIELD_ENGINE_MPG">
        <source></source>
        <translation>Rendimiento del combustible</translation>
    </message>
    <message id="FIELD_ENGINE_BOOST">
        <source></source>
        <translation>Presión de sobrealimentación</translation>
    </message>
    <message id="tcp_no_answer_yet_MSG">
        <source></source>
        <translation>El adaptador aún no ha respondido. Compruebe que este equipo está en la red inalámbrica del adaptador y que la dirección y el puerto son correctos.</translation>
    </message>
    <message id="serial_no_answer_yet_MSG">
        <source></source>
        <translation>El adaptador aún no ha respondido. Compruebe el cable y el puerto en las preferencias.</translation>
    </message>
    <message id="serial_not_chosen">
        <source></source>
        <translation>No se ha elegido ningún puerto. Conecte el adaptador y elija su puerto en las preferencias.</translation>
    </message>
    <message id="serial_not_there">
        <source></source>
        <translation>%1 no existe. Conecte el adaptador o elija otro puerto en las preferencias.</translation>
    </message>
    <message id="serial_taken">
        <source></source>
        <translation>%1 ha desaparecido: otro servicio se ha quedado con el cable del adaptador. Casi siempre es brltty, para líneas braille. Si nadie lo necesita, escriba «sudo apt remove brltty» en un terminal y vuelva a conectar el adaptador.</translation>
    </message>
    <message id="serial_not_permitted">
        <source></source>
        <translation>No tiene permiso para usar %1: pertenece al grupo %2. Escriba «sudo usermod -a -G %2 $USER» en un terminal, cierre la sesión y vuelva a entrar.</translation>
    </message>
    <message id="serial_busy">
        <source></source>
        <translation>Otro programa tiene abierto %1. Ciérrelo y vuelva a intentarlo. ModemManager lo suelta por sí solo en menos de medio minuto.</translation>
    </message>
    <message id="serial_silent">
        <source></source>
        <translation>Ningún adaptador responde en %1 (probado: %2 baudios). Compruebe que es el puerto del adaptador, que el adaptador está en la toma de diagnóstico y la velocidad en las preferencias.</translation>
    </message>
    <message id="serial_other">
        <source></source>
        <translation>%1 no se puede usar: %2</translation>
    </message>
    <message id="bt_no_adapter_MSG">
        <source></source>
        <translation>No se ha elegido ningún adaptador Bluetooth. Pulse de nuevo para elegir uno.</translation>
    </message>
    <message id="bt_not_reached_MSG">
        <source></source>
        <translation>Sin conexión Bluetooth. Pulse de nuevo para volver a intentarlo. Para elegir otro adaptador, desactive «Volver a usar el último adaptador» en las preferencias.</translation>
    </message>
    <message id="bt_closed_MSG">
        <source></source>
        <translation>La conexión Bluetooth se ha cerrado. Pulse Reconectar para volver a conectar.</translation>
    </message>
    <message id="ui_where_to_begin">
        <source></source>
        <translation>Elija Preferencias para configurar su adaptador y después Códigos de avería para leer el coche.</translation>
    </message>
    <message id="ui_start_wifi">
        <source></source>
        <translation>Adaptador &amp;wifi</translation>
    </message>
    <message id="ui_start_bluetooth">
        <source></source>
        <translation>Adaptador &amp;Bluetooth</translation>
    </message>
    <message id="ui_start_serial">
        <source></source>
        <translation>Cable &amp;USB o serie</translation>
    </message>
    <message id="ui_start_demo">
        <source></source>
        <translation>Probar con el coche &amp;virtual</translation>
    </message>
    <message id="ui_rail_codes">
        <source></source>
        <translation>&amp;Códigos</translation>
    </message>
    <message id="ui_rail_live">
        <source></source>
        <translation>&amp;Datos en vivo</translation>
    </message>
    <message id="ui_rail_logs">
        <source></source>
        <translation>Re&amp;gistros</translation>
    </message>
    <message id="ui_rail_logs_hint">
        <source></source>
        <translation>Datos en vivo guarda los registros; Archivo &gt; Exportar registro… los exporta como tablas</translation>
    </message>
    <message id="ui_rail_expert">
        <source></source>
        <translation>&amp;Experto</translation>
    </message>
    <message id="ui_rail_prefs">
        <source></source>
        <translation>&amp;Preferencias</translation>
    </message>
    <message id="ui_rail_help">
        <source></source>
        <translation>A&amp;yuda</translation>
    </message>
    <message id="ui_busy">
        <source></source>
        <translation>Ocupado</translation>
    </message>
    <message id="ui_status">
        <source></source>
        <translation>Estado</translation>
    </message>
    <message id="ui_codes_title">
        <source></source>
        <translation>Códigos de avería</translation>
    </message>
    <message id="ui_read_codes">
        <source></source>
        <translation>&amp;Leer códigos</translation>
    </message>
    <message id="ui_read_codes_hint">
        <source></source>
        <translation>Leer el testigo, los códigos guardados y el estado de los monitores</translation>
    </message>
    <message id="ui_clear_codes">
        <source></source>
        <translation>&amp;Borrar códigos…</translation>
    </message>
    <message id="ui_clear_codes_hint">
        <source></source>
        <translation>Borrar los códigos guardados y apagar el testigo</translation>
    </message>
    <message id="ui_lamp">
        <source></source>
        <translation>Testigo de avería</translation>
    </message>
    <message id="ui_count">
        <source></source>
        <translation>Códigos de avería</translation>
    </message>
    <message id="ui_read_on">
        <source></source>
        <translation>Leído el</translation>
    </message>
    <message id="ui_adapter">
        <source></source>
        <translation>Adaptador</translation>
    </message>
    <message id="ui_protocol">
        <source></source>
        <translation>Protocolo</translation>
    </message>
    <message id="ui_units">
        <source></source>
        <translation>Unidades de control</translation>
    </message>
    <message id="ui_col_code">
        <source></source>
        <translation>Código</translation>
    </message>
    <message id="ui_col_description">
        <source></source>
        <translation>Descripción</translation>
    </message>
    <message id="ui_codes_table">
        <source></source>
        <translation>Códigos de avería guardados</translation>
    </message>
    <message id="ui_codes_table_hint">
        <source></source>
        <translation>Las descripciones están en inglés, con los términos de la norma SAE J2012</translation>
    </message>
    <message id="ui_codes_empty">
        <source></source>
        <translation>Los códigos de avería guardados aparecen aquí después de «Leer códigos».</translation>
    </message>
    <message id="ui_codes_none">
        <source></source>
        <translation>El coche no comunica ningún código de avería guardado.</translation>
    </message>
    <message id="ui_codes_unread">
        <source></source>
        <translation>No se han podido leer por completo los códigos de avería.</translation>
    </message>
    <message id="ui_col_state">
        <source></source>
        <translation>Estado</translation>
    </message>
    <message id="ui_col_monitor">
        <source></source>
        <translation>Monitor</translation>
    </message>
    <message id="ui_col_kind">
        <source></source>
        <translation>Tipo</translation>
    </message>
    <message id="ui_readiness_table">
        <source></source>
        <translation>Estado de los monitores</translation>
    </message>
    <message id="ui_readiness_hint">
        <source></source>
        <translation>OK: la comprobación está completa
X: aún no está completa; no es una avería, se hace durante la marcha
N/A: este coche no tiene este monitor
Los nombres de los monitores están en inglés.</translation>
    </message>
    <message id="ui_readiness_empty">
        <source></source>
        <translation>El estado de los monitores aparece aquí después de «Leer códigos».</translation>
    </message>
    <message id="ui_live_title">
        <source></source>
        <translation>Datos en vivo</translation>
    </message>
    <message id="ui_stall_hint">
        <source></source>
        <translation>esperando al adaptador desde hace %1 s</translation>
    </message>
    <message id="ui_reconnect">
        <source></source>
        <translation>&amp;Reconectar</translation>
    </message>
    <message id="ui_reconnect_hint">
        <source></source>
        <translation>Cierra la conexión con el adaptador y la restablece</translation>
    </message>
    <message id="ui_reconnected">
        <source></source>
        <translation>Conectado de nuevo. Pulse un botón para continuar.</translation>
    </message>
    <message id="ui_settings_not_saved">
        <source></source>
        <translation>No se pudieron guardar las preferencias. Valen hasta que se cierre Kestrom y después se pierden. ¿Está el disco lleno o protegido contra escritura?</translation>
    </message>
    <message id="ui_live_run">
        <source></source>
        <translation>&amp;Sesión:</translation>
    </message>
    <message id="ui_live_run_hint">
        <source></source>
        <translation>Tipo de sesión</translation>
    </message>
    <message id="ui_live_zoom">
        <source></source>
        <translation>&amp;Zoom:</translation>
    </message>
    <message id="ui_live_zoom_hint">
        <source></source>
        <translation>Cuántas de las últimas mediciones muestra el gráfico grande</translation>
    </message>
    <message id="ui_live_start">
        <source></source>
        <translation>Iniciar la sesión (Ctrl+R)</translation>
    </message>
    <message id="ui_live_stop">
        <source></source>
        <translation>Detener la sesión (Ctrl+R)</translation>
    </message>
    <message id="ui_live_next_sensors">
        <source></source>
        <translation>Siguientes so&amp;ndas</translation>
    </message>
    <message id="ui_live_strip">
        <source></source>
        <translation>Parámetros</translation>
    </message>
    <message id="ui_live_strip_hint">
        <source></source>
        <translation>Haga clic para mostrarlo en el gráfico grande; Ctrl o Mayús para varios</translation>
    </message>
    <message id="ui_live_chart">
        <source></source>
        <translation>Gráfico</translation>
    </message>
    <message id="ui_live_dial_1">
        <source></source>
        <translation>Primer indicador</translation>
    </message>
    <message id="ui_live_dial_2">
        <source></source>
        <translation>Segundo indicador</translation>
    </message>
    <message id="ui_live_empty">
        <source></source>
        <translation>No hay parámetros elegidos. Elija en las preferencias los que debe leer una sesión.</translation>
    </message>
    <message id="ui_live_press_start">
        <source></source>
        <translation>El botón redondo de arriba a la derecha inicia la sesión.</translation>
    </message>
    <message id="ui_live_second_dial">
        <source></source>
        <translation>Ctrl+clic en un segundo parámetro de arriba muestra aquí su indicador.</translation>
    </message>
    <message id="ui_fast">
        <source></source>
        <translation>Rápido</translation>
    </message>
    <message id="ui_fast_hint">
        <source></source>
        <translation>Pide varios valores a la vez y no espera más de lo necesario, en la medida en que el adaptador y el coche demuestren que pueden. A algunos coches no les sienta bien: desactívelo si se encienden testigos o el motor gira mal. Vale desde el próximo inicio.</translation>
    </message>
    <message id="ui_fast_no_use">
        <source></source>
        <translation>Este coche no responde más deprisa de lo que ya se le pregunta.</translation>
    </message>
    <message id="ui_fast_rate">
        <source></source>
        <translation>%1 valores/s</translation>
    </message>
    <message id="ui_fast_rate_hint">
        <source></source>
        <translation>Valores por segundo, y cómo se piden</translation>
    </message>
    <message id="ui_fast_level_0">
        <source></source>
        <translation>de uno en uno</translation>
    </message>
    <message id="ui_fast_level_1">
        <source></source>
        <translation>sin esperas</translation>
    </message>
    <message id="ui_fast_level_2">
        <source></source>
        <translation>varios a la vez</translation>
    </message>
    <message id="ui_fast_level_3">
        <source></source>
        <translation>varios, sin esperas</translation>
    </message>
    <message id="ui_fast_level_down">
        <source></source>
        <translation>Algunas respuestas no encajaban: el muestreo rápido sigue con más cuidado</translation>
    </message>
    <message id="ui_fast_given_up">
        <source></source>
        <translation>Algunas respuestas no encajaban: el muestreo sigue valor por valor</translation>
    </message>
    <message id="ui_live_follow">
        <source></source>
        <translation>Seguir el grá&amp;fico</translation>
    </message>
    <message id="ui_live_follow_hint">
        <source></source>
        <translation>El primer indicador sigue entonces el parámetro del gráfico grande.</translation>
    </message>
    <message id="ui_live_dial_unmoved">
        <source></source>
        <translation>Nada mueve este indicador: elija el primer parámetro o «Seguir el gráfico».</translation>
    </message>
    <message id="ui_live_length">
        <source></source>
        <translation>Duración de la sesión</translation>
    </message>
    <message id="ui_live_reading">
        <source></source>
        <translation>%1: %2, rango de %3 a %4</translation>
    </message>
    <message id="ui_live_log_failed">
        <source></source>
        <translation>Registro interrumpido:</translation>
    </message>
    <message id="ui_live_no_sensors">
        <source></source>
        <translation>El coche no informa de ninguna sonda de oxígeno</translation>
    </message>
    <message id="ui_expert_title">
        <source></source>
        <translation>Experto</translation>
    </message>
    <message id="ui_transcript">
        <source></source>
        <translation>Transcripción</translation>
    </message>
    <message id="ui_transcript_empty">
        <source></source>
        <translation>Aquí aparecen los comandos y las respuestas en bruto del adaptador.</translation>
    </message>
    <message id="ui_command">
        <source></source>
        <translation>Comando</translation>
    </message>
    <message id="ui_command_label">
        <source></source>
        <translation>C&amp;omando:</translation>
    </message>
    <message id="ui_command_hint">
        <source></source>
        <translation>AT I, 01 0C, 03 …</translation>
    </message>
    <message id="ui_command_too_long">
        <source></source>
        <translation>Un comando tiene como máximo 38 caracteres. No se ha enviado nada.</translation>
    </message>
    <message id="ui_send">
        <source></source>
        <translation>En&amp;viar</translation>
    </message>
    <message id="ui_prefs_title">
        <source></source>
        <translation>Preferencias</translation>
    </message>
    <message id="ui_adapter_group">
        <source></source>
        <translation>Adaptador</translation>
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
        <translation>Cable &amp;USB o serie</translation>
    </message>
    <message id="ui_serial_speed">
        <source></source>
        <translation>Velocidad:</translation>
    </message>
    <message id="ui_serial_auto">
        <source></source>
        <translation>hallada probando</translation>
    </message>
    <message id="ui_serial_absent">
        <source></source>
        <translation>%1 (no conectado)</translation>
    </message>
    <message id="ui_serial_none">
        <source></source>
        <translation>ninguno conectado</translation>
    </message>
    <message id="ui_kind_bluetooth">
        <source></source>
        <translation>Solo necesita el adaptador; emparéjelo aquí o en los ajustes del escritorio. Velocidad: media, menor con Low Energy. Si falla: desenchúfelo, vuelva a enchufarlo y compruebe que ningún teléfono lo ocupa.</translation>
    </message>
    <message id="ui_kind_wifi">
        <source></source>
        <translation>Necesita que este equipo esté en la red inalámbrica del adaptador, a menudo sin internet. Velocidad: buena. Si falla: vuelva a unirse a esa red y compruebe la dirección y el puerto.</translation>
    </message>
    <message id="ui_kind_serial">
        <source></source>
        <translation>Necesita un puerto libre y permiso para usarlo. Velocidad: buena, como mucho la del cable. Si falla: vuelva a conectar el cable; el mensaje dice quién ocupa el puerto o qué grupo puede usarlo.</translation>
    </message>
    <message id="ui_address">
        <source></source>
        <translation>Di&amp;rección:</translation>
    </message>
    <message id="ui_port">
        <source></source>
        <translation>Puer&amp;to:</translation>
    </message>
    <message id="ui_last_bt">
        <source></source>
        <translation>&amp;Volver a usar el último adaptador</translation>
    </message>
    <message id="ui_last_bt_hint">
        <source></source>
        <translation>Conectar sin preguntar con el último adaptador elegido</translation>
    </message>
    <message id="ui_units_group">
        <source></source>
        <translation>Unidades y registro</translation>
    </message>
    <message id="ui_metric">
        <source></source>
        <translation>Unidades &amp;métricas</translation>
    </message>
    <message id="ui_metric_hint">
        <source></source>
        <translation>km/h, °C y kPa en lugar de mph, °F y psi</translation>
    </message>
    <message id="ui_log_runs">
        <source></source>
        <translation>Regi&amp;strar las sesiones</translation>
    </message>
    <message id="ui_log_runs_hint">
        <source></source>
        <translation>Guardar cada sesión de Datos en vivo en un archivo</translation>
    </message>
    <message id="ui_language">
        <source></source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message id="ui_language_desktop">
        <source></source>
        <translation>Idioma del escritorio</translation>
    </message>
    <message id="ui_language_hint">
        <source></source>
        <translation>Se aplica la próxima vez que se inicie el programa. Las descripciones de los códigos y los nombres de los monitores y de los parámetros siguen en inglés.</translation>
    </message>
    <message id="ui_pids_group">
        <source></source>
        <translation>Parámetros de una sesión</translation>
    </message>
    <message id="ui_pids_table">
        <source></source>
        <translation>Parámetros</translation>
    </message>
    <message id="ui_col_show">
        <source></source>
        <translation>Mostrar</translation>
    </message>
    <message id="ui_col_parameter">
        <source></source>
        <translation>Parámetro</translation>
    </message>
    <message id="ui_prefs_saved_on_leaving">
        <source></source>
        <translation>Los cambios se guardan al salir de esta pantalla.</translation>
    </message>
    <message id="ui_defaults">
        <source></source>
        <translation>V&amp;alores predeterminados</translation>
    </message>
    <message id="ui_menu_file">
        <source></source>
        <translation>Arc&amp;hivo</translation>
    </message>
    <message id="ui_menu_export">
        <source></source>
        <translation>&amp;Exportar registro…</translation>
    </message>
    <message id="ui_menu_quit">
        <source></source>
        <translation>&amp;Salir</translation>
    </message>
    <message id="ui_export_title">
        <source></source>
        <translation>Exportar registro</translation>
    </message>
    <message id="ui_export_logs">
        <source></source>
        <translation>&amp;Registros, el más reciente primero:</translation>
    </message>
    <message id="ui_export_none">
        <source></source>
        <translation>Todavía no hay registros. Datos en vivo guarda uno por sesión si «Registrar las sesiones» está marcado en las preferencias.</translation>
    </message>
    <message id="ui_export_log">
        <source></source>
        <translation>Registro</translation>
    </message>
    <message id="ui_export_size">
        <source></source>
        <translation>Tamaño</translation>
    </message>
    <message id="ui_export_written">
        <source></source>
        <translation>Guardado</translation>
    </message>
    <message id="ui_export_csv">
        <source></source>
        <translation>Tabla para una &amp;hoja de cálculo (.csv)</translation>
    </message>
    <message id="ui_export_txt">
        <source></source>
        <translation>&amp;Texto (.txt)</translation>
    </message>
    <message id="ui_export_time">
        <source></source>
        <translation>Primero el t&amp;iempo de cada ronda, en segundos</translation>
    </message>
    <message id="ui_export_start">
        <source></source>
        <translation>&amp;Exportar</translation>
    </message>
    <message id="ui_export_open_folder">
        <source></source>
        <translation>&amp;Abrir la carpeta</translation>
    </message>
    <message id="ui_export_close">
        <source></source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message id="ui_export_progress">
        <source></source>
        <translation>Progreso de la exportación</translation>
    </message>
    <message id="ui_export_done">
        <source></source>
        <translation>%1 filas exportadas a %2</translation>
    </message>
    <message id="bt_chooser_title">
        <source></source>
        <translation>Elegir un adaptador Bluetooth</translation>
    </message>
    <message id="bt_chooser_sentence">
        <source></source>
        <translation>Enchufe el adaptador en la toma de diagnóstico del coche, dé el contacto y elíjalo en la lista.</translation>
    </message>
    <message id="bt_devices">
        <source></source>
        <translation>Dispositivos Bluetooth</translation>
    </message>
    <message id="bt_col_name">
        <source></source>
        <translation>Nombre</translation>
    </message>
    <message id="bt_col_address">
        <source></source>
        <translation>Dirección</translation>
    </message>
    <message id="bt_col_paired">
        <source></source>
        <translation>Emparejado</translation>
    </message>
    <message id="bt_col_signal">
        <source></source>
        <translation>Señal</translation>
    </message>
    <message id="bt_col_serial">
        <source></source>
        <translation>Puerto serie</translation>
    </message>
    <message id="bt_col_kind">
        <source></source>
        <translation>Tipo</translation>
    </message>
    <message id="bt_classic">
        <source></source>
        <translation>Clásico</translation>
    </message>
    <message id="bt_low_energy">
        <source></source>
        <translation>Low Energy</translation>
    </message>
    <message id="bt_both_kinds">
        <source></source>
        <translation>ambos</translation>
    </message>
    <message id="bt_yes">
        <source></source>
        <translation>sí</translation>
    </message>
    <message id="bt_no">
        <source></source>
        <translation>no</translation>
    </message>
    <message id="bt_when_connecting">
        <source></source>
        <translation>aún desconocido</translation>
    </message>
    <message id="bt_searching">
        <source></source>
        <translation>Buscando dispositivos Bluetooth…</translation>
    </message>
    <message id="bt_search_over">
        <source></source>
        <translation>La búsqueda ha terminado. ¿Falta el adaptador? Desenchúfelo, vuelva a enchufarlo, dé el contacto y busque de nuevo.</translation>
    </message>
    <message id="bt_none_found">
        <source></source>
        <translation>No se ha encontrado ningún dispositivo Bluetooth.

¿Está enchufado el adaptador y dado el contacto? ¿Está conectado a un teléfono? Después, busque de nuevo.</translation>
    </message>
    <message id="bt_connecting">
        <source></source>
        <translation>Conectando con %1… Si el entorno de escritorio pide un PIN, la mayoría de los adaptadores usan 1234 o 0000.</translation>
    </message>
    <message id="bt_search_again">
        <source></source>
        <translation>&amp;Buscar de nuevo</translation>
    </message>
    <message id="bt_cancel">
        <source></source>
        <translation>C&amp;ancelar</translation>
    </message>
    <message id="bt_connect">
        <source></source>
        <translation>&amp;Conectar</translation>
    </message>
    <message id="bt_service_missing">
        <source></source>
        <translation>El servicio Bluetooth no está en marcha en este equipo.

Instale el paquete bluez si falta e inicie el servicio:
sudo systemctl enable --now bluetooth</translation>
    </message>
    <message id="bt_no_adapter">
        <source></source>
        <translation>Este equipo no tiene ningún adaptador Bluetooth que funcione.

Conecte un adaptador USB Bluetooth o use un adaptador de diagnóstico Wi-Fi o de cable.</translation>
    </message>
    <message id="bt_switched_off">
        <source></source>
        <translation>El Bluetooth está desactivado.

Actívelo en los ajustes del escritorio, o con:
bluetoothctl power on</translation>
    </message>
    <message id="bt_not_permitted">
        <source></source>
        <translation>No tiene permiso para usar el Bluetooth en este equipo.

Inicie sesión en el propio equipo, o pida a su administrador que lo añada al grupo bluetooth.</translation>
    </message>
    <message id="bt_in_use">
        <source></source>
        <translation>Otro programa de este equipo está usando %1. Ciérrelo e inténtelo de nuevo.</translation>
    </message>
    <message id="bt_out_of_reach">
        <source></source>
        <translation>%1 no responde. ¿Está enchufado, está dado el contacto y está cerca el coche?</translation>
    </message>
    <message id="bt_no_serial_port">
        <source></source>
        <translation>%1 no ofrece ningún puerto serie, así que no es un adaptador con el que Kestrom pueda hablar. Elija otro dispositivo.</translation>
    </message>
    <message id="bt_refused">
        <source></source>
        <translation>%1 ha rechazado la conexión. ¿Lo usa un teléfono u otro equipo? Desenchufe el adaptador, vuelva a enchufarlo e inténtelo otra vez.</translation>
    </message>
    <message id="bt_pairing_failed">
        <source></source>
        <translation>El emparejamiento con %1 ha fallado. Inténtelo de nuevo y confirme lo que pida el entorno de escritorio; la mayoría de los adaptadores usan el PIN 1234 o 0000.</translation>
    </message>
    <message id="bt_other_problem">
        <source></source>
        <translation>La conexión con %1 ha fallado. Desenchufe el adaptador, vuelva a enchufarlo e inténtelo otra vez.</translation>
    </message>
    <message id="bt_no_chooser">
        <source></source>
        <translation>No se ha elegido ningún adaptador Bluetooth. Indique uno con --bluetooth DIRECCIÓN (kestrom bluetooth-scan muestra los que están al alcance), un adaptador Wi-Fi con --adapter HOST:PUERTO o un cable con --adapter /dev/ttyUSB0; --demo no necesita ninguno.</translation>
    </message>
    <message id="ui_menu_about">
        <source></source>
        <translation>&amp;Acerca de Kestrom</translation>
    </message>
    <message id="ui_about">
        <source></source>
        <translation>Lee el diagnóstico de a bordo (OBD-II) de un coche con un adaptador de tipo ELM327: códigos de avería, monitores, datos en vivo, registros y una consola.

Software libre con licencia MIT.
© 2026 The Kestrom developers</translation>
    </message>
    <message id="ui_about_close">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="ui_run_log">
        <source></source>
        <translation>Parámetros</translation>
    </message>
    <message id="ui_run_fuel">
        <source></source>
        <translation>Consumo</translation>
    </message>
    <message id="ui_run_sensors">
        <source></source>
        <translation>Sondas lambda</translation>
    </message>
    <message id="ui_run_boost">
        <source></source>
        <translation>Turbo</translation>
    </message>
    <message id="ui_unread">
        <source></source>
        <translation>No se ha podido leer todo lo que ha enviado el coche: %1. Pueden faltar códigos de avería: vuelva a leerlos.</translation>
    </message>
    <message id="unread_adapter_notice">
        <source></source>
        <translation>el adaptador ha comunicado %1</translation>
    </message>
    <message id="unread_damaged_line">
        <source></source>
        <translation>una línea dañada</translation>
    </message>
    <message id="unread_not_understood">
        <source></source>
        <translation>una línea que no es una respuesta</translation>
    </message>
    <message id="unread_broken_off">
        <source></source>
        <translation>una respuesta incompleta</translation>
    </message>
    <message id="unread_too_long">
        <source></source>
        <translation>una respuesta seguida de datos ajenos</translation>
    </message>
    <message id="unread_frames_unclear">
        <source></source>
        <translation>tramas que no encajan</translation>
    </message>
    <message id="unread_refused">
        <source></source>
        <translation>una unidad de control ha rechazado la petición (%1)</translation>
    </message>
    <message id="unread_no_answer">
        <source></source>
        <translation>el coche no ha respondido</translation>
    </message>
    <message id="unread_silent_unit">
        <source></source>
        <translation>una unidad de control no ha respondido (%1)</translation>
    </message>
    <message id="unread_left_out">
        <source></source>
        <translation>el coche también ha enviado %1, que no figura en la lista</translation>
    </message>
    <message id="ui_more_button">
        <source></source>
        <translation>Más parámetros…</translation>
    </message>
    <message id="ui_more_hint">
        <source></source>
        <translation>Elegir qué se pide además de los parámetros de las preferencias</translation>
    </message>
    <message id="ui_more_title">
        <source></source>
        <translation>Más parámetros</translation>
    </message>
    <message id="ui_more_search">
        <source></source>
        <translation>Buscar por nombre o PID</translation>
    </message>
    <message id="ui_more_name">
        <source></source>
        <translation>Parámetro</translation>
    </message>
    <message id="ui_more_unit">
        <source></source>
        <translation>Unidad</translation>
    </message>
    <message id="ui_more_support">
        <source></source>
        <translation>Este coche</translation>
    </message>
    <message id="ui_more_yes">
        <source></source>
        <translation>admitido</translation>
    </message>
    <message id="ui_more_no">
        <source></source>
        <translation>no admitido</translation>
    </message>
    <message id="ui_more_in_prefs">
        <source></source>
        <translation>Elegido en las preferencias</translation>
    </message>
    <message id="ui_more_ask">
        <source></source>
        <translation>&amp;Preguntar al coche</translation>
    </message>
    <message id="ui_more_use">
        <source></source>
        <translation>&amp;Usar estos</translation>
    </message>
    <message id="ui_more_cancel">
        <source></source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="ui_more_unknown">
        <source></source>
        <translation>Aún no se sabe qué admite este coche.</translation>
    </message>
    <message id="ui_more_asking">
        <source></source>
        <translation>Preguntando al coche qué admite</translation>
    </message>
    <message id="ui_more_told">
        <source></source>
        <translation>El coche ha indicado qué admite</translation>
    </message>
    <message id="ui_more_untold">
        <source></source>
        <translation>El coche no ha indicado qué admite</translation>
    </message>
    <message id="ui_more_known">
        <source></source>
        <translation>Este coche admite %d parámetros.</translation>
    </message>
    <message id="ui_menu_lookup">
        <source></source>
        <translation>&amp;Buscar un código…</translation>
    </message>
    <message id="ui_lookup_title">
        <source></source>
        <translation>Buscar un código</translation>
    </message>
    <message id="ui_lookup_search">
        <source></source>
        <translation>Código o palabras de la descripción (en inglés)</translation>
    </message>
    <message id="ui_lookup_none">
        <source></source>
        <translation>No se ha encontrado nada</translation>
    </message>
    <message id="ui_lookup_found">
        <source></source>
        <translation>Encontrados: %d</translation>
    </message>
    <message id="ui_lookup_close">
        <source></source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message id="report_title">
        <source></source>
        <translation>Informe del vehículo</translation>
    </message>
    <message id="report_compare_title">
        <source></source>
        <translation>Comparación de dos informes</translation>
    </message>
    <message id="report_plate">
        <source></source>
        <translation>Matrícula</translation>
    </message>
    <message id="report_owner">
        <source></source>
        <translation>Titular</translation>
    </message>
    <message id="report_odometer">
        <source></source>
        <translation>Cuentakilómetros leído a mano</translation>
    </message>
    <message id="report_signature">
        <source></source>
        <translation>Fecha, firma</translation>
    </message>
    <message id="report_page">
        <source></source>
        <translation>Página %1 de %2</translation>
    </message>
    <message id="report_foot">
        <source></source>
        <translation>Leído por OBD genérico: solo motor y emisiones; sin airbags, frenos ni carrocería.</translation>
    </message>
    <message id="report_fact_lamp">
        <source></source>
        <translation>Testigo del motor (MIL)</translation>
    </message>
    <message id="report_fact_codes">
        <source></source>
        <translation>Códigos de avería</translation>
    </message>
    <message id="report_fact_readiness">
        <source></source>
        <translation>Preparación (readiness)</translation>
    </message>
    <message id="report_on">
        <source></source>
        <translation>ENCENDIDO</translation>
    </message>
    <message id="report_off">
        <source></source>
        <translation>apagado</translation>
    </message>
    <message id="report_counts">
        <source></source>
        <translation>Almacenados: %1; pendientes: %2; permanentes: %3</translation>
    </message>
    <message id="report_at_least">
        <source></source>
        <translation>al menos %1</translation>
    </message>
    <message id="report_ready">
        <source></source>
        <translation>%1 de %2 completos</translation>
    </message>
    <message id="report_not_told">
        <source></source>
        <translation>no comunicado</translation>
    </message>
    <message id="report_refused">
        <source></source>
        <translation>rechazado (%1)</translation>
    </message>
    <message id="report_unread">
        <source></source>
        <translation>ilegible</translation>
    </message>
    <message id="report_not_asked">
        <source></source>
        <translation>no preguntado</translation>
    </message>
    <message id="report_none">
        <source></source>
        <translation>ninguno</translation>
    </message>
    <message id="report_section_vehicle">
        <source></source>
        <translation>Vehículo</translation>
    </message>
    <message id="report_section_readings">
        <source></source>
        <translation>En el momento de la lectura</translation>
    </message>
    <message id="report_section_adapter">
        <source></source>
        <translation>Adaptador y bus</translation>
    </message>
    <message id="report_section_units">
        <source></source>
        <translation>Unidades de control</translation>
    </message>
    <message id="report_section_codes">
        <source></source>
        <translation>Códigos de avería</translation>
    </message>
    <message id="report_section_frames">
        <source></source>
        <translation>Datos congelados</translation>
    </message>
    <message id="report_section_readiness">
        <source></source>
        <translation>Preparación (readiness)</translation>
    </message>
    <message id="report_section_cleared">
        <source></source>
        <translation>Desde el borrado de los códigos</translation>
    </message>
    <message id="report_section_tests">
        <source></source>
        <translation>Resultados de las pruebas</translation>
    </message>
    <message id="report_section_counters">
        <source></source>
        <translation>Contadores en uso</translation>
    </message>
    <message id="report_section_unread">
        <source></source>
        <translation>Lo que no se ha leído y por qué</translation>
    </message>
    <message id="report_section_changes">
        <source></source>
        <translation>Lo que apareció y desapareció</translation>
    </message>
    <message id="report_vin">
        <source></source>
        <translation>Número de bastidor (VIN)</translation>
    </message>
    <message id="report_vin_odd">
        <source></source>
        <translation>%1 (número no conforme a la norma: %2)</translation>
    </message>
    <message id="report_vins_differ">
        <source></source>
        <translation>Las unidades dan números distintos: %1</translation>
    </message>
    <message id="report_read_at">
        <source></source>
        <translation>Leído el</translation>
    </message>
    <message id="report_seconds">
        <source></source>
        <translation>Duración</translation>
    </message>
    <message id="report_volts">
        <source></source>
        <translation>Batería, según el adaptador</translation>
    </message>
    <message id="report_engine_running">
        <source></source>
        <translation>Motor en marcha</translation>
    </message>
    <message id="report_yes">
        <source></source>
        <translation>sí</translation>
    </message>
    <message id="report_no">
        <source></source>
        <translation>no</translation>
    </message>
    <message id="report_adapter">
        <source></source>
        <translation>Adaptador</translation>
    </message>
    <message id="report_protocol">
        <source></source>
        <translation>Protocolo</translation>
    </message>
    <message id="report_answered">
        <source></source>
        <translation>Unidades que respondieron</translation>
    </message>
    <message id="report_col_unit">
        <source></source>
        <translation>Unidad</translation>
    </message>
    <message id="report_col_address">
        <source></source>
        <translation>Dirección</translation>
    </message>
    <message id="report_col_name">
        <source></source>
        <translation>Nombre</translation>
    </message>
    <message id="report_col_calibration">
        <source></source>
        <translation>Calibración</translation>
    </message>
    <message id="report_col_verification">
        <source></source>
        <translation>Número de verificación (CVN)</translation>
    </message>
    <message id="report_col_code">
        <source></source>
        <translation>Código</translation>
    </message>
    <message id="report_col_meaning">
        <source></source>
        <translation>Significado</translation>
    </message>
    <message id="report_col_stored">
        <source></source>
        <translation>Almacenado</translation>
    </message>
    <message id="report_col_pending">
        <source></source>
        <translation>Pendiente</translation>
    </message>
    <message id="report_col_permanent">
        <source></source>
        <translation>Permanente</translation>
    </message>
    <message id="report_col_frame">
        <source></source>
        <translation>Congelado</translation>
    </message>
    <message id="report_col_value">
        <source></source>
        <translation>Valor</translation>
    </message>
    <message id="report_col_monitor">
        <source></source>
        <translation>Monitor</translation>
    </message>
    <message id="report_col_state">
        <source></source>
        <translation>Estado</translation>
    </message>
    <message id="report_col_drive">
        <source></source>
        <translation>Este trayecto</translation>
    </message>
    <message id="report_col_test">
        <source></source>
        <translation>Prueba</translation>
    </message>
    <message id="report_col_lowest">
        <source></source>
        <translation>Mín.</translation>
    </message>
    <message id="report_col_highest">
        <source></source>
        <translation>Máx.</translation>
    </message>
    <message id="report_col_result">
        <source></source>
        <translation>Resultado</translation>
    </message>
    <message id="report_col_near">
        <source></source>
        <translation>Camino al límite</translation>
    </message>
    <message id="report_col_done">
        <source></source>
        <translation>Hechas</translation>
    </message>
    <message id="report_col_conditions">
        <source></source>
        <translation>Condiciones cumplidas</translation>
    </message>
    <message id="report_col_ratio">
        <source></source>
        <translation>Relación</translation>
    </message>
    <message id="report_col_what">
        <source></source>
        <translation>Qué</translation>
    </message>
    <message id="report_col_why">
        <source></source>
        <translation>Por qué</translation>
    </message>
    <message id="report_col_before">
        <source></source>
        <translation>Antes</translation>
    </message>
    <message id="report_col_after">
        <source></source>
        <translation>Después</translation>
    </message>
    <message id="report_complete">
        <source></source>
        <translation>completo</translation>
    </message>
    <message id="report_not_complete">
        <source></source>
        <translation>incompleto</translation>
    </message>
    <message id="report_not_supported">
        <source></source>
        <translation>No disponibles: %1</translation>
    </message>
    <message id="report_spark">
        <source></source>
        <translation>monitores de gasolina</translation>
    </message>
    <message id="report_compression">
        <source></source>
        <translation>monitores de diésel</translation>
    </message>
    <message id="report_failed">
        <source></source>
        <translation>NO SUPERADA</translation>
    </message>
    <message id="report_passed">
        <source></source>
        <translation>superada</translation>
    </message>
    <message id="report_no_result">
        <source></source>
        <translation>sin resultado aún</translation>
    </message>
    <message id="report_legend">
        <source></source>
        <translation>Pendiente: visto en este trayecto o el anterior. Almacenado: confirmado. Permanente: sigue tras el borrado hasta superar su prueba.</translation>
    </message>
    <message id="report_mismatch">
        <source></source>
        <translation>%1: el estado cuenta %2 códigos almacenados, la lista contiene %3.</translation>
    </message>
    <message id="report_cylinders">
        <source></source>
        <translation>Los cilindros llevan el número con que los cuenta la unidad.</translation>
    </message>
    <message id="report_no_o2_tests">
        <source></source>
        <translation>Antes de CAN no se leen las pruebas de sondas O2 del servicio 05.</translation>
    </message>
    <message id="report_unknown_code">
        <source></source>
        <translation>no figura en la lista de códigos</translation>
    </message>
    <message id="report_why_not_listed">
        <source></source>
        <translation>esta unidad no lo ofrece</translation>
    </message>
    <message id="report_why_listed">
        <source></source>
        <translation>sin respuesta, aunque la unidad lo ofrece</translation>
    </message>
    <message id="report_why_no_answer">
        <source></source>
        <translation>sin respuesta</translation>
    </message>
    <message id="report_why_time_out">
        <source></source>
        <translation>sin respuesta a tiempo</translation>
    </message>
    <message id="report_why_incomplete">
        <source></source>
        <translation>faltan partes de la respuesta</translation>
    </message>
    <message id="report_why_ended">
        <source></source>
        <translation>la lectura había terminado</translation>
    </message>
    <message id="report_partly">
        <source></source>
        <translation>una parte no se pudo leer</translation>
    </message>
    <message id="report_request">
        <source></source>
        <translation>petición %1</translation>
    </message>
    <message id="report_end_cancelled">
        <source></source>
        <translation>La lectura se canceló: se muestra lo leído hasta entonces.</translation>
    </message>
    <message id="report_end_time_up">
        <source></source>
        <translation>La lectura duró demasiado y se detuvo: se muestra lo leído hasta entonces.</translation>
    </message>
    <message id="report_end_adapter_silent">
        <source></source>
        <translation>El adaptador dejó de responder: se muestra lo leído hasta entonces.</translation>
    </message>
    <message id="report_end_link_lost">
        <source></source>
        <translation>La conexión se cortó: se muestra lo leído hasta entonces.</translation>
    </message>
    <message id="report_part_status">
        <source></source>
        <translation>Testigo y preparación</translation>
    </message>
    <message id="report_part_this_drive">
        <source></source>
        <translation>Preparación de este trayecto</translation>
    </message>
    <message id="report_part_stored">
        <source></source>
        <translation>Códigos almacenados</translation>
    </message>
    <message id="report_part_pending">
        <source></source>
        <translation>Códigos pendientes</translation>
    </message>
    <message id="report_part_permanent">
        <source></source>
        <translation>Códigos permanentes</translation>
    </message>
    <message id="report_part_frame">
        <source></source>
        <translation>Datos congelados</translation>
    </message>
    <message id="report_part_vin">
        <source></source>
        <translation>VIN</translation>
    </message>
    <message id="report_part_unit_name">
        <source></source>
        <translation>Nombre de la unidad</translation>
    </message>
    <message id="report_part_calibrations">
        <source></source>
        <translation>Calibraciones</translation>
    </message>
    <message id="report_part_verification_numbers">
        <source></source>
        <translation>Números de verificación</translation>
    </message>
    <message id="report_part_counters">
        <source></source>
        <translation>Contadores en uso</translation>
    </message>
    <message id="report_part_tests">
        <source></source>
        <translation>Resultados de las pruebas</translation>
    </message>
    <message id="report_nothing_unread">
        <source></source>
        <translation>Se comunicó todo lo que se preguntó.</translation>
    </message>
    <message id="report_other_car">
        <source></source>
        <translation>Estos informes son de dos coches distintos: %1 y %2.</translation>
    </message>
    <message id="report_no_changes">
        <source></source>
        <translation>No ha cambiado nada de lo que comunican ambos informes.</translation>
    </message>
    <message id="ui_rail_report">
        <source></source>
        <translation>Informe</translation>
    </message>
    <message id="ui_report_title">
        <source></source>
        <translation>Informe del vehículo</translation>
    </message>
    <message id="ui_report_read">
        <source></source>
        <translation>&amp;Leer informe</translation>
    </message>
    <message id="ui_report_cancel">
        <source></source>
        <translation>Ca&amp;ncelar</translation>
    </message>
    <message id="ui_report_save">
        <source></source>
        <translation>G&amp;uardar como…</translation>
    </message>
    <message id="ui_report_print">
        <source></source>
        <translation>I&amp;mprimir…</translation>
    </message>
    <message id="ui_report_copy">
        <source></source>
        <translation>C&amp;opiar</translation>
    </message>
    <message id="ui_report_open">
        <source></source>
        <translation>A&amp;brir…</translation>
    </message>
    <message id="ui_report_compare">
        <source></source>
        <translation>Comp&amp;arar…</translation>
    </message>
    <message id="ui_report_hide_vin">
        <source></source>
        <translation>Ocul&amp;tar el final del VIN</translation>
    </message>
    <message id="ui_report_hide_vin_hint">
        <source></source>
        <translation>Se ocultan sus seis últimos caracteres: en la hoja y en lo que se guarda, imprime o copia.</translation>
    </message>
    <message id="ui_report_empty">
        <source></source>
        <translation>Pulse Leer informe: se pregunta a cada unidad por códigos, datos congelados, preparación, resultados de pruebas e identidad.</translation>
    </message>
    <message id="ui_report_save_title">
        <source></source>
        <translation>Guardar informe</translation>
    </message>
    <message id="ui_report_open_title">
        <source></source>
        <translation>Abrir informe</translation>
    </message>
    <message id="ui_report_compare_title">
        <source></source>
        <translation>Informe anterior para comparar</translation>
    </message>
    <message id="ui_report_not_saved">
        <source></source>
        <translation>El informe no se guardó.</translation>
    </message>
    <message id="ui_report_saved">
        <source></source>
        <translation>Guardado: %1</translation>
    </message>
    <message id="ui_report_copied">
        <source></source>
        <translation>El informe está en el portapapeles.</translation>
    </message>
    <message id="ui_report_not_opened">
        <source></source>
        <translation>Este archivo no se puede abrir como informe.</translation>
    </message>
    <message id="report_starting">
        <source></source>
        <translation>Preparando el adaptador</translation>
    </message>
    <message id="report_progress">
        <source></source>
        <translation>Leyendo %1 (%2 de %3)</translation>
    </message>
    <message id="report_topic_adapter">
        <source></source>
        <translation>lo que dice el adaptador</translation>
    </message>
    <message id="report_topic_supported">
        <source></source>
        <translation>lo que ofrecen las unidades</translation>
    </message>
    <message id="report_topic_status">
        <source></source>
        <translation>testigo y preparación</translation>
    </message>
    <message id="report_topic_codes">
        <source></source>
        <translation>códigos de avería</translation>
    </message>
    <message id="report_topic_readings">
        <source></source>
        <translation>valores</translation>
    </message>
    <message id="report_topic_frames">
        <source></source>
        <translation>datos congelados</translation>
    </message>
    <message id="report_topic_identity">
        <source></source>
        <translation>identidad</translation>
    </message>
    <message id="report_topic_tests">
        <source></source>
        <translation>resultados de pruebas</translation>
    </message>
    <message id="report_done">
        <source></source>
        <translation>El informe está completo.</translation>
    </message>
    <message id="report_done_partly">
        <source></source>
        <translation>El informe se ha leído. Lo no comunicado figura al final.</translation>
    </message>
    <message id="report_nothing_told">
        <source></source>
        <translation>El coche no comunicó nada.</translation>
    </message>
    <message id="report_cancelled">
        <source></source>
        <translation>La lectura se canceló.</translation>
    </message>
    <message id="ui_copy_rows">
        <source></source>
        <translation>&amp;Copiar filas</translation>
    </message>
    <message id="ui_codes_to_report">
        <source></source>
        <translation>&amp;Guardar o imprimir: informe del vehículo</translation>
    </message>
    <message id="ui_report_offer">
        <source></source>
        <translation>Ofrecer ante&amp;s de borrar</translation>
    </message>
    <message id="ui_report_offer_hint">
        <source></source>
        <translation>Antes de borrar códigos se ofrece un informe leído y no guardado.</translation>
    </message>
    <message id="ui_report_before_clear">
        <source></source>
        <translation>¿Guardar el informe antes de borrar?</translation>
    </message>
    <message id="ui_report_before_clear_hint">
        <source></source>
        <translation>El borrado elimina también los datos congelados y los resultados de las pruebas. El informe leído los contiene.</translation>
    </message>
    <message id="ui_report_go_on">
        <source></source>
        <translation>Continuar sin guardar</translation>
    </message>
    <message id="report_none_so_far">
        <source></source>
        <translation>ninguno, según lo comunicado</translation>
    </message>
    <message id="ui_report_save_first">
        <source></source>
        <translation>Guardar como…</translation>
    </message>
    <message id="ui_report_text_file">
        <source></source>
        <translation>Texto</translation>
    </message>
    <message id="report_off_so_far">
        <source></source>
        <translation>apagado, según lo comunicado</translation>
    </message>
    <message id="report_why_put_off">
        <source></source>
        <translation>la unidad pidió esperar y no respondió a tiempo</translation>
    </message>
    <message id="ui_report_opened">
        <source></source>
        <translation>Abierto: %1</translation>
    </message>
    <message id="ui_code_from">
        <source></source>
        <translation>De la unidad de control: %1</translation>
    </message>
    <message id="report_name_Misfire">
        <source></source>
        <translation>Fallos de encendido</translation>
    </message>
    <message id="report_name_Fuel system">
        <source></source>
        <translation>Sistema de combustible</translation>
    </message>
    <message id="report_name_Comprehensive components">
        <source></source>
        <translation>Componentes en general</translation>
    </message>
    <message id="report_name_Catalyst">
        <source></source>
        <translation>Catalizador</translation>
    </message>
    <message id="report_name_Heated catalyst">
        <source></source>
        <translation>Catalizador calentado</translation>
    </message>
    <message id="report_name_Evaporative system">
        <source></source>
        <translation>Sistema evaporativo</translation>
    </message>
    <message id="report_name_Secondary air system">
        <source></source>
        <translation>Aire secundario</translation>
    </message>
    <message id="report_name_A/C refrigerant / petrol particulate filter">
        <source></source>
        <translation>Refrigerante / filtro de partículas de gasolina</translation>
    </message>
    <message id="report_name_O2 sensor">
        <source></source>
        <translation>Sonda de oxígeno</translation>
    </message>
    <message id="report_name_O2 sensor heater">
        <source></source>
        <translation>Calefactor de la sonda de oxígeno</translation>
    </message>
    <message id="report_name_EGR/VVT system">
        <source></source>
        <translation>Sistema EGR/VVT</translation>
    </message>
    <message id="report_name_NMHC catalyst">
        <source></source>
        <translation>Catalizador NMHC</translation>
    </message>
    <message id="report_name_NOx/SCR aftertreatment">
        <source></source>
        <translation>Postratamiento NOx/SCR</translation>
    </message>
    <message id="report_name_Boost pressure">
        <source></source>
        <translation>Presión de sobrealimentación</translation>
    </message>
    <message id="report_name_Exhaust gas sensor">
        <source></source>
        <translation>Sensor de gases de escape</translation>
    </message>
    <message id="report_name_Particulate filter">
        <source></source>
        <translation>Filtro de partículas</translation>
    </message>
    <message id="report_name_OBD monitoring conditions met">
        <source></source>
        <translation>Condiciones de supervisión OBD cumplidas</translation>
    </message>
    <message id="report_name_Ignition cycles">
        <source></source>
        <translation>Ciclos de encendido</translation>
    </message>
    <message id="report_name_Catalyst, bank 1">
        <source></source>
        <translation>Catalizador, banco 1</translation>
    </message>
    <message id="report_name_Catalyst, bank 2">
        <source></source>
        <translation>Catalizador, banco 2</translation>
    </message>
    <message id="report_name_O2 sensor, bank 1">
        <source></source>
        <translation>Sonda de oxígeno, banco 1</translation>
    </message>
    <message id="report_name_O2 sensor, bank 2">
        <source></source>
        <translation>Sonda de oxígeno, banco 2</translation>
    </message>
    <message id="report_name_Secondary O2 sensor, bank 1">
        <source></source>
        <translation>Segunda sonda de oxígeno, banco 1</translation>
    </message>
    <message id="report_name_Secondary O2 sensor, bank 2">
        <source></source>
        <translation>Segunda sonda de oxígeno, banco 2</translation>
    </message>
    <message id="report_name_NOx catalyst">
        <source></source>
        <translation>Catalizador NOx</translation>
    </message>
    <message id="report_name_NOx adsorber">
        <source></source>
        <translation>Adsorbedor de NOx</translation>
    </message>
</context>
</TS>

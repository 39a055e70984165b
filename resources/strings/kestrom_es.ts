<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="KS_help">
        <source></source>
        <translation>Kestrom lee el diagnóstico de a bordo (OBD-II) de su coche mediante un adaptador de tipo ELM327.

Conexión: enchufe el adaptador en la toma de diagnóstico del coche, normalmente bajo el volante, y dé el contacto. Con un adaptador Wi-Fi, conecte primero este equipo a la red inalámbrica del adaptador, elija después Wi-Fi en las preferencias y escriba su dirección y su puerto (casi siempre 192.168.0.10 y 35000). Con un adaptador Bluetooth, elija Bluetooth; la primera tarea que inicie preguntará qué dispositivo usar.

Códigos de avería: «Leer códigos» muestra los códigos guardados con su significado, el testigo de avería y el estado de los monitores. «Borrar códigos» borra los códigos, apaga el testigo y pone a cero los monitores; hágalo con el motor parado y solo después de anotar los códigos.

Datos en vivo: elija el tipo de registro y pulse el botón de inicio. Cada parámetro tiene una gráfica pequeña; haga clic en ella para verla en grande y en el indicador, y mantenga Ctrl para elegir otra para el segundo indicador. La lista de parámetros y las unidades están en las preferencias.

Registros: con el registro activado en las preferencias, cada sesión se guarda en su propio archivo de la carpeta «loggies»; el botón Registros indica dónde está.

Experto: escriba una orden del adaptador (AT I) o una petición (01 0C) y lea la respuesta sin tratar.

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
    <message id="init_OBD_error_MSG">
        <source></source>
        <translation>El adaptador no ha podido iniciar el bus de diagnóstico del coche. Quite el contacto y vuelva a darlo, compruebe que el adaptador está bien enchufado en la toma de diagnóstico e inténtelo otra vez.</translation>
    </message>
    <message id="blank_input_MSG">
        <source></source>
        <translation>Escriba antes una orden, por ejemplo AT I o 01 0C.</translation>
    </message>
    <message id="FIELD_ENGINE_MPG">
        <source></source>
        <translation>Rendimiento de combustible</translation>
    </message>
    <message id="FIELD_ENGINE_BOOST">
        <source></source>
        <translation>Presión de sobrealimentación</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="status.external_power">
        <source>External power</source>
        <translation>Con alimentación externa</translation>
    </message>
    <message id="status.waiting_telemetry">
        <source>Waiting for telemetry</source>
        <translation>Esperando datos</translation>
    </message>
    <message id="status.on_battery">
        <source>On battery</source>
        <translation>Con batería</translation>
    </message>
    <message id="status.charging">
        <source>Charging</source>
        <translation>Cargando</translation>
    </message>
    <message id="status.power_connected">
        <source>Not charging</source>
        <translation>Sin cargar</translation>
    </message>
    <message id="status.fully_charged">
        <source>Fully charged</source>
        <translation>Carga completa</translation>
    </message>
    <message id="power.ac_connected">
        <source>AC power connected</source>
        <translation>Adaptador de corriente conectado</translation>
    </message>
    <message id="power.dc_disconnected">
        <source>No external power</source>
        <translation>Sin alimentación externa</translation>
    </message>
    <message id="duration.minutes">
        <source>%L1 min</source>
        <translation>%L1 min</translation>
    </message>
    <message id="duration.hours_minutes">
        <source>%L1 h %L2 min</source>
        <translation>%L1 h %L2 min</translation>
    </message>
    <message id="battery.health.good">
        <source>Good</source>
        <translation>Buena</translation>
    </message>
    <message id="battery.health.fair">
        <source>Fair</source>
        <translation>Aceptable</translation>
    </message>
    <message id="battery.health.poor">
        <source>Poor</source>
        <translation>Mala</translation>
    </message>
    <message id="FERROW">
        <source>FERROW</source>
        <translation>FERROW</translation>
    </message>
    <message id="%.1f W">
        <source>%.1f W</source>
        <translation>%.1f W</translation>
    </message>
    <message id="— W">
        <source>— W</source>
        <translation>— W</translation>
    </message>
    <message id="app.menu_subtitle">
        <source>Power monitor</source>
        <translation>Monitor de energía</translation>
    </message>
    <message id="app.menu_subtitle_simulated">
        <source>Simulated notebook · not this machine</source>
        <translation>Portátil simulado · no es este equipo</translation>
    </message>
    <message id="app.menu_subtitle_simulated_desktop">
        <source>Simulated desktop · not this machine</source>
        <translation>Sobremesa simulado · no es este equipo</translation>
    </message>
    <message id="app.version">
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message id="status.live">
        <source>Live</source>
        <translation>En directo</translation>
    </message>
    <message id="status.waiting">
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message id="power.battery_discharge">
        <source>BATTERY DISCHARGE</source>
        <translation>DESCARGA DE BATERÍA</translation>
    </message>
    <message id="power.system_total">
        <source>System total</source>
        <translation>Total del sistema</translation>
    </message>
    <message id="power.live_flow">
        <source>Live power flow</source>
        <translation>Flujo de energía en directo</translation>
    </message>
    <message id="power.adapter">
        <source>Adapter</source>
        <translation>Adaptador</translation>
    </message>
    <message id="power.mac_system">
        <source>Mac system</source>
        <translation>Sistema del Mac</translation>
    </message>
    <message id="device.power_source">
        <source>Power source</source>
        <translation>Fuente de alimentación</translation>
    </message>
    <message id="device.sample_rate">
        <source>Sample rate</source>
        <translation>Frecuencia de muestreo</translation>
    </message>
    <message id="battery.title">
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message id="battery.not_detected">
        <source>No battery detected</source>
        <translation>No se detecta batería</translation>
    </message>
    <message id="battery.desktop_description">
        <source>This Mac runs on external power only.</source>
        <translation>Este Mac funciona solo con alimentación externa.</translation>
    </message>
    <message id="battery.cycle_count">
        <source>Cycle count</source>
        <translation>Ciclos de carga</translation>
    </message>
    <message id="battery.voltage">
        <source>Voltage</source>
        <translation>Tensión</translation>
    </message>
    <message id="battery.current">
        <source>Current</source>
        <translation>Corriente</translation>
    </message>
    <message id="battery.charge_status">
        <source>Charge status</source>
        <translation>Estado de carga</translation>
    </message>
    <message id="battery.status">
        <source>Battery status</source>
        <translation>Estado de la batería</translation>
    </message>
    <message id="battery.estimated_full">
        <source>Time to full</source>
        <translation>Carga completa en</translation>
    </message>
    <message id="battery.health">
        <source>Health</source>
        <translation>Salud</translation>
    </message>
    <message id="battery.temperature">
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message id="battery.health_value">
        <source>%1% · %2</source>
        <translation>%1 % · %2</translation>
    </message>
    <message id="setting.login_awaiting_approval">
        <source>Approve Ferrow in System Settings › Login Items to start it at login</source>
        <translation>Permítelo en Ajustes del Sistema › Ítems de inicio</translation>
    </message>
    <message id="setting.login_needs_applications">
        <source>Move Ferrow to Applications to start it at login</source>
        <translation>Mueve Ferrow a Aplicaciones para abrirlo al iniciar sesión</translation>
    </message>
    <message id="setting.launch_at_login">
        <source>Launch at login</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message id="setting.menu_bar_power">
        <source>Show watts in menu bar</source>
        <translation>Mostrar vatios en la barra de menús</translation>
    </message>
    <message id="action.open_details">
        <source>Open details</source>
        <translation>Abrir detalles</translation>
    </message>
    <message id="action.open_details_subtitle">
        <source>Charts, cells and battery history</source>
        <translation>Gráficos, celdas e historial de la batería</translation>
    </message>
    <message id="action.open_official_website">
        <source>Open the Ferrow website</source>
        <translation>Abrir el sitio web de Ferrow</translation>
    </message>
    <message id="action.quit">
        <source>Quit Ferrow</source>
        <translation>Salir de Ferrow</translation>
    </message>
    <message id="action.show_dashboard">
        <source>Show dashboard</source>
        <translation>Mostrar panel</translation>
    </message>
    <message id="tray.no_tray_notice">
        <source>No menu-bar area on this desktop: the dashboard opens as a window.</source>
        <translation>Este escritorio no tiene barra de menús: el panel se abre como ventana.</translation>
    </message>
    <message id="tray.tooltip">
        <source>Ferrow · %1</source>
        <translation>Ferrow · %1</translation>
    </message>
    <message id="tray.tooltip_simulated">
        <source>Ferrow (simulated) · %1</source>
        <translation>Ferrow (simulado) · %1</translation>
    </message>
    <message id="window.device_details">
        <source>Device details</source>
        <translation>Detalles del dispositivo</translation>
    </message>
    <message id="app.subtitle">
        <source>Power, battery and cells at a glance</source>
        <translation>Potencia, batería y celdas de un vistazo</translation>
    </message>
    <message id="action.refresh">
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message id="action.refresh_help">
        <source>Take a reading now</source>
        <translation>Tomar una lectura ahora</translation>
    </message>
    <message id="action.toggle_sidebar">
        <source>Show or hide the sidebar</source>
        <translation>Mostrar u ocultar la barra lateral</translation>
    </message>
    <message id="sidebar.monitor">
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message id="sidebar.system">
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message id="sidebar.updated_at">
        <source>Updated at %1</source>
        <translation>Actualizado a las %1</translation>
    </message>
    <message id="accessibility.scroll_to">
        <source>Scroll to %1</source>
        <translation>Ir a «%1»</translation>
    </message>
    <message id="section.overview">
        <source>Overview</source>
        <translation>Resumen</translation>
    </message>
    <message id="section.power">
        <source>Power</source>
        <translation>Potencia</translation>
    </message>
    <message id="section.battery">
        <source>Charge and health</source>
        <translation>Carga y salud</translation>
    </message>
    <message id="section.cells">
        <source>Cells</source>
        <translation>Celdas</translation>
    </message>
    <message id="section.device">
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message id="overview.external_power">
        <source>Running on external power</source>
        <translation>Funcionando con alimentación externa</translation>
    </message>
    <message id="overview.charging">
        <source>Charging</source>
        <translation>Cargando</translation>
    </message>
    <message id="overview.no_battery_subtitle">
        <source>This Mac has no battery; all power comes from its supply.</source>
        <translation>Este Mac no tiene batería; toda la energía procede de su fuente de alimentación.</translation>
    </message>
    <message id="overview.power_distribution_subtitle">
        <source>Adapter power is shared between the system and the battery.</source>
        <translation>La potencia del adaptador se reparte entre el sistema y la batería.</translation>
    </message>
    <message id="overview.battery_subtitle">
        <source>The battery supplies the whole system.</source>
        <translation>La batería alimenta todo el sistema.</translation>
    </message>
    <message id="power.distribution">
        <source>Power distribution</source>
        <translation>Distribución de potencia</translation>
    </message>
    <message id="power.chip_permission">
        <source>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</source>
        <translation>La potencia del chip queda vacía: en esta máquina Linux solo root puede leer los contadores de energía del procesador. La sección «Chip power on Linux» del README muestra una regla udev que lo permite.</translation>
    </message>
    <message id="power.dc_input">
        <source>DC input</source>
        <translation>Entrada de CC</translation>
    </message>
    <message id="power.battery_power">
        <source>Battery power</source>
        <translation>Potencia de la batería</translation>
    </message>
    <message id="power_history.title">
        <source>Power history</source>
        <translation>Historial de potencia</translation>
    </message>
    <message id="power_history.pwr">
        <source>PWR</source>
        <translation>PWR</translation>
    </message>
    <message id="power_history.range">
        <source>Time range</source>
        <translation>Intervalo de tiempo</translation>
    </message>
    <message id="power_history.minutes">
        <source>%L1 min</source>
        <translation>%L1 min</translation>
    </message>
    <message id="power_history.waiting">
        <source>Waiting for readings</source>
        <translation>Esperando lecturas</translation>
    </message>
    <message id="power_history.waiting_description">
        <source>The chart fills in once a second.</source>
        <translation>El gráfico se completa cada segundo.</translation>
    </message>
    <message id="power_history.average">
        <source>Average</source>
        <translation>Media</translation>
    </message>
    <message id="power_history.peak">
        <source>Peak</source>
        <translation>Pico</translation>
    </message>
    <message id="power_history.time">
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message id="power_history.watts">
        <source>Watts</source>
        <translation>Vatios</translation>
    </message>
    <message id="battery.not_detected_description">
        <source>This Mac runs on external power only.</source>
        <translation>Este Mac funciona solo con alimentación externa.</translation>
    </message>
    <message id="battery.design_capacity">
        <source>Design capacity</source>
        <translation>Capacidad de diseño</translation>
    </message>
    <message id="battery.full_charge_capacity">
        <source>Full charge capacity</source>
        <translation>Capacidad de carga completa</translation>
    </message>
    <message id="battery.nominal_full_charge_capacity">
        <source>Nominal full charge capacity</source>
        <translation>Capacidad nominal de carga completa</translation>
    </message>
    <message id="capacity.mah">
        <source>%L1 mAh</source>
        <translation>%L1 mAh</translation>
    </message>
    <message id="count.times" numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln vez</numerusform>
            <numerusform>%Ln veces</numerusform>
        </translation>
    </message>
    <message id="cells.status">
        <source>Cell voltages</source>
        <translation>Tensiones de las celdas</translation>
    </message>
    <message id="cells.no_data">
        <source>No cell voltages</source>
        <translation>Sin tensiones de celda</translation>
    </message>
    <message id="cells.no_data_description">
        <source>This battery does not report its cells.</source>
        <translation>Esta batería no informa de sus celdas.</translation>
    </message>
    <message id="cells.source.registry">
        <source>Reported by the battery</source>
        <translation>Informado por la batería</translation>
    </message>
    <message id="cells.source.smc">
        <source>Read from the system management controller</source>
        <translation>Leído del controlador de gestión del sistema</translation>
    </message>
    <message id="device.title">
        <source>This Mac</source>
        <translation>Este Mac</translation>
    </message>
    <message id="device.once_per_second">
        <source>Once a second</source>
        <translation>Una vez por segundo</translation>
    </message>
    <message id="device.gpu_power">
        <source>GPU power</source>
        <translation>Potencia de la GPU</translation>
    </message>
    <message id="device.battery_serial">
        <source>Battery serial</source>
        <translation>N.º de serie de la batería</translation>
    </message>
    <message id="device.total_operating_time">
        <source>Total operating time</source>
        <translation>Tiempo total de funcionamiento</translation>
    </message>
    <message id="device.history">
        <source>Lifetime history</source>
        <translation>Historial de vida útil</translation>
    </message>
    <message id="duration.days_hours">
        <source>%L1 d %L2 h</source>
        <translation>%L1 d %L2 h</translation>
    </message>
    <message id="history.max_battery_temperature">
        <source>Highest battery temperature</source>
        <translation>Temperatura máxima de la batería</translation>
    </message>
    <message id="history.min_battery_temperature">
        <source>Lowest battery temperature</source>
        <translation>Temperatura mínima de la batería</translation>
    </message>
    <message id="history.average_battery_temperature">
        <source>Average battery temperature</source>
        <translation>Temperatura media de la batería</translation>
    </message>
    <message id="history.max_pack_voltage">
        <source>Highest pack voltage</source>
        <translation>Tensión máxima del paquete</translation>
    </message>
    <message id="history.min_pack_voltage">
        <source>Lowest pack voltage</source>
        <translation>Tensión mínima del paquete</translation>
    </message>
    <message id="history.max_charge_current">
        <source>Highest charge current</source>
        <translation>Corriente de carga máxima</translation>
    </message>
    <message id="history.max_discharge_current">
        <source>Highest discharge current</source>
        <translation>Corriente de descarga máxima</translation>
    </message>
    <message id="history.safety_protection_count">
        <source>Safety protection events</source>
        <translation>Eventos de protección de seguridad</translation>
    </message>
    <message id="battery.packs">
        <source>Batteries</source>
        <translation>Baterías</translation>
    </message>
    <message id="battery.pack_charge">
        <source>Charge</source>
        <translation>Carga</translation>
    </message>
    <message id="power.usb_c_contract">
        <source>USB-C %1 V · %2 A</source>
        <translation>USB-C %1 V · %2 A</translation>
    </message>
    <message id="power.usb_c_voltage">
        <source>USB-C %1 V</source>
        <translation>USB-C %1 V</translation>
    </message>
    <message id="section.energy_history">
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message id="energy_history.off">
        <source>History is off.</source>
        <translation>El historial está desactivado.</translation>
    </message>
    <message id="energy_history.failing">
        <source>History is not being kept: %1</source>
        <translation>No se está guardando el historial: %1</translation>
    </message>
    <message id="energy_history.empty">
        <source>No history yet: Ferrow records energy once a minute.</source>
        <translation>Aún no hay historial: Ferrow registra la energía una vez por minuto.</translation>
    </message>
    <message id="energy_history.since">
        <source>Ferrow has been keeping history since %1</source>
        <translation>Ferrow guarda el historial desde el %1</translation>
    </message>
    <message id="energy_history.range">
        <source>Range</source>
        <translation>Periodo</translation>
    </message>
    <message id="energy_history.week">
        <source>7 days</source>
        <translation>7 días</translation>
    </message>
    <message id="energy_history.month">
        <source>30 days</source>
        <translation>30 días</translation>
    </message>
    <message id="energy_history.year">
        <source>12 months</source>
        <translation>12 meses</translation>
    </message>
    <message id="energy_history.energy">
        <source>Energy</source>
        <translation>Energía</translation>
    </message>
    <message id="energy_history.adapter">
        <source>From the adapter</source>
        <translation>Del adaptador</translation>
    </message>
    <message id="energy_history.battery">
        <source>From the battery</source>
        <translation>De la batería</translation>
    </message>
    <message id="energy_history.nothing_in_range">
        <source>Nothing recorded in this period</source>
        <translation>No hay registros en este periodo</translation>
    </message>
    <message id="energy_history.sessions">
        <source>Recent sessions</source>
        <translation>Sesiones recientes</translation>
    </message>
    <message id="energy_history.no_sessions">
        <source>No sessions recorded yet.</source>
        <translation>Aún no hay sesiones registradas.</translation>
    </message>
    <message id="energy_history.batteries">
        <source>Battery health over time</source>
        <translation>Salud de la batería a lo largo del tiempo</translation>
    </message>
    <message id="energy_history.health">
        <source>Health (%)</source>
        <translation>Salud (%)</translation>
    </message>
    <message id="energy_history.capacity">
        <source>Full-charge capacity (mAh)</source>
        <translation>Capacidad a carga completa (mAh)</translation>
    </message>
    <message id="session.on_battery">
        <source>On battery</source>
        <translation>Con batería</translation>
    </message>
    <message id="session.on_adapter">
        <source>On the adapter</source>
        <translation>Con el adaptador</translation>
    </message>
    <message id="session.on_battery_for">
        <source>On battery for %1 · %2 used</source>
        <translation>Con batería desde hace %1 · %2 usados</translation>
    </message>
    <message id="session.on_adapter_for">
        <source>On the adapter for %1 · %2 delivered</source>
        <translation>Con el adaptador desde hace %1 · %2 suministrados</translation>
    </message>
    <message id="session.mean_peak">
        <source>Mean %1 · Peak %2</source>
        <translation>Media %1 · Pico %2</translation>
    </message>
    <message id="session.two_units">
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message id="session.minutes" numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln min</numerusform>
            <numerusform>%Ln min</numerusform>
        </translation>
    </message>
    <message id="session.hours" numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln h</numerusform>
            <numerusform>%Ln h</numerusform>
        </translation>
    </message>
    <message id="session.days" numerus="yes">
        <source>%Ln d</source>
        <translation>
            <numerusform>%Ln día</numerusform>
            <numerusform>%Ln días</numerusform>
        </translation>
    </message>
    <message id="history.keep">
        <source>Keep energy history</source>
        <translation>Guardar el historial de energía</translation>
    </message>
    <message id="history.turn_off_title">
        <source>Turn off energy history?</source>
        <translation>¿Desactivar el historial de energía?</translation>
    </message>
    <message id="history.turn_off_text">
        <source>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</source>
        <translation>Ferrow eliminará el historial de energía guardado en este ordenador. No se puede deshacer.</translation>
    </message>
    <message id="history.turn_off_confirm">
        <source>Delete history</source>
        <translation>Eliminar historial</translation>
    </message>
    <message id="power.computer_system">
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message id="battery.computer_external_only">
        <source>This computer runs on external power only.</source>
        <translation>Este ordenador funciona solo con alimentación externa.</translation>
    </message>
    <message id="overview.computer_no_battery_subtitle">
        <source>This computer has no battery; all power comes from its supply.</source>
        <translation>Este ordenador no tiene batería; toda la energía procede de su fuente de alimentación.</translation>
    </message>
    <message id="device.computer_title">
        <source>This computer</source>
        <translation>Este ordenador</translation>
    </message>
    <message id="accessibility.not_available">
        <source>not available</source>
        <translation>no disponible</translation>
    </message>
    <message id="accessibility.reading">
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message id="accessibility.note">
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message id="accessibility.watts">
        <source>%1 watts</source>
        <translation>%1 vatios</translation>
    </message>
    <message id="accessibility.volts">
        <source>%1 volts</source>
        <translation>%1 voltios</translation>
    </message>
    <message id="accessibility.amperes">
        <source>%1 amperes</source>
        <translation>%1 amperios</translation>
    </message>
    <message id="accessibility.degrees_celsius">
        <source>%1 degrees Celsius</source>
        <translation>%1 grados Celsius</translation>
    </message>
    <message id="accessibility.milliampere_hours" numerus="yes">
        <source>%Ln mAh</source>
        <translation>
            <numerusform>%Ln miliamperio hora</numerusform>
            <numerusform>%Ln miliamperios hora</numerusform>
        </translation>
    </message>
    <message id="accessibility.hertz" numerus="yes">
        <source>%Ln Hz</source>
        <translation>
            <numerusform>%Ln hercio</numerusform>
            <numerusform>%Ln hercios</numerusform>
        </translation>
    </message>
    <message id="accessibility.cell">
        <source>Cell %L1</source>
        <translation>Celda %L1</translation>
    </message>
    <message id="accessibility.flow_adapter">
        <source>Adapter %1 to system %2</source>
        <translation>Adaptador %1 al sistema %2</translation>
    </message>
    <message id="accessibility.flow_battery">
        <source>Battery %1 to system %2</source>
        <translation>Batería %1 al sistema %2</translation>
    </message>
    <message id="accessibility.flow_charging">
        <source>Adapter %1 to system %2 and battery %3</source>
        <translation>Adaptador %1 al sistema %2 y a la batería %3</translation>
    </message>
    <message id="accessibility.flow_discharging">
        <source>Adapter %1 and battery %2 to system %3</source>
        <translation>Adaptador %1 y batería %2 al sistema %3</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.title">
        <source>Charger cannot keep up</source>
        <translation>El cargador no da abasto</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body">
        <source>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</source>
        <translation>La batería se está descargando %1 aunque hay alimentación externa conectada: adaptador %2 (%3, %4), sistema %5, batería %6.</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body_unmeasured">
        <source>The battery has been draining %1 although external power is connected: system %2, battery %3.</source>
        <translation>La batería se está descargando %1 aunque hay alimentación externa conectada: sistema %2, batería %3.</translation>
    </message>
    <message id="alert.charging_slowly.title">
        <source>Charging slowly</source>
        <translation>Carga lenta</translation>
    </message>
    <message id="alert.charging_slowly.body_five_volts">
        <source>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</source>
        <translation>La fuente USB-C solo suministra %1, por lo que la batería se carga lentamente: adaptador %2, sistema %3, batería %4.</translation>
    </message>
    <message id="alert.charging_slowly.body_adapter">
        <source>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</source>
        <translation>El adaptador suministra menos de lo que el sistema consumió de media %1, por lo que la batería se carga lentamente: adaptador %2, sistema %3.</translation>
    </message>
    <message id="alert.battery_hot.title">
        <source>Battery hot</source>
        <translation>Batería caliente</translation>
    </message>
    <message id="alert.battery_hot.body">
        <source>The battery is at %1, at or above the limit of %2.</source>
        <translation>La batería está a %1, en el límite de %2 o por encima.</translation>
    </message>
    <message id="alert.battery_hot.body_charging">
        <source>The battery has been at %1 or warmer %2 while charging: now %3.</source>
        <translation>La batería está a %1 o más durante la carga, y así %2: ahora %3.</translation>
    </message>
    <message id="alert.cells_out_of_balance.title">
        <source>Battery cells out of balance</source>
        <translation>Celdas de la batería desequilibradas</translation>
    </message>
    <message id="alert.cells_out_of_balance.body">
        <source>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</source>
        <translation>Las tensiones de las celdas difieren en más de %1 en reposo, y así %2: ahora %3 de diferencia (de %4 a %5).</translation>
    </message>
    <message id="alert.charge_level_reached.title">
        <source>Charge level reached</source>
        <translation>Nivel de carga alcanzado</translation>
    </message>
    <message id="alert.charge_level_reached.body">
        <source>The battery has reached the chosen level of %1.</source>
        <translation>La batería ha alcanzado el nivel elegido del %1.</translation>
    </message>
    <message id="alert.for_minutes" numerus="yes">
        <source>for %Ln minutes</source>
        <translation>
            <numerusform>desde hace %Ln minuto</numerusform>
            <numerusform>desde hace %Ln minutos</numerusform>
        </translation>
    </message>
    <message id="alert.over_last_minutes" numerus="yes">
        <source>over the last %Ln minutes</source>
        <translation>
            <numerusform>en el último %Ln minuto</numerusform>
            <numerusform>en los últimos %Ln minutos</numerusform>
        </translation>
    </message>
    <message id="alert.active_several" numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 y %Ln más</numerusform>
            <numerusform>%1 y %Ln más</numerusform>
        </translation>
    </message>
    <message id="alerts.title">
        <source>Alerts</source>
        <translation>Alertas</translation>
    </message>
    <message id="alerts.caption" numerus="yes">
        <source>Each alert is shown once and repeated at most every %Ln minutes while it holds.</source>
        <translation>
            <numerusform>Cada alerta se muestra una vez y, mientras persista, se repite como mucho cada %Ln minuto.</numerusform>
            <numerusform>Cada alerta se muestra una vez y, mientras persista, se repite como mucho cada %Ln minutos.</numerusform>
        </translation>
    </message>
    <message id="alerts.hot_while_charging">
        <source>While charging, above</source>
        <translation>Al cargar, por encima de</translation>
    </message>
    <message id="alerts.hot_any_time">
        <source>At any time, above</source>
        <translation>En cualquier momento, por encima de</translation>
    </message>
    <message id="alerts.notifications_denied">
        <source>Notifications are turned off for Ferrow in the system&apos;s settings</source>
        <translation>Las notificaciones de Ferrow están desactivadas en los ajustes del sistema</translation>
    </message>
    <message id="section.applications">
        <source>Applications</source>
        <translation>Aplicaciones</translation>
    </message>
    <message id="apps.panel_title">
        <source>Energy by application</source>
        <translation>Energía por aplicación</translation>
    </message>
    <message id="apps.popover_title">
        <source>Most energy this session</source>
        <translation>Más energía en esta sesión</translation>
    </message>
    <message id="apps.popover_title_since_start">
        <source>Most energy since Ferrow started</source>
        <translation>Más energía desde que se inició Ferrow</translation>
    </message>
    <message id="apps.popover_none">
        <source>Nothing measured yet this session</source>
        <translation>Aún no se ha medido nada en esta sesión</translation>
    </message>
    <message id="apps.popover_none_since_start">
        <source>Nothing measured yet</source>
        <translation>Aún no se ha medido nada</translation>
    </message>
    <message id="apps.period">
        <source>Period</source>
        <translation>Periodo</translation>
    </message>
    <message id="apps.period_session">
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message id="apps.period_today">
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message id="apps.period_7_days">
        <source>7 days</source>
        <translation>7 días</translation>
    </message>
    <message id="apps.period_30_days">
        <source>30 days</source>
        <translation>30 días</translation>
    </message>
    <message id="apps.covered">
        <source>Over %1</source>
        <translation>Durante %1</translation>
    </message>
    <message id="apps.column_application">
        <source>Application</source>
        <translation>Aplicación</translation>
    </message>
    <message id="apps.column_energy">
        <source>Energy</source>
        <translation>Energía</translation>
    </message>
    <message id="apps.column_mean_power">
        <source>Mean power</source>
        <translation>Potencia media</translation>
    </message>
    <message id="apps.column_share">
        <source>Share</source>
        <translation>Proporción</translation>
    </message>
    <message id="apps.column_cpu_time">
        <source>CPU time</source>
        <translation>Tiempo de CPU</translation>
    </message>
    <message id="apps.column_cpu_share">
        <source>Share of CPU time</source>
        <translation>Proporción del tiempo de CPU</translation>
    </message>
    <message id="apps.sort_by_energy">
        <source>Sort by energy</source>
        <translation>Ordenar por energía</translation>
    </message>
    <message id="apps.sort_by_mean_power">
        <source>Sort by mean power</source>
        <translation>Ordenar por potencia media</translation>
    </message>
    <message id="apps.self">
        <source>Ferrow (this app)</source>
        <translation>Ferrow (esta app)</translation>
    </message>
    <message id="apps.since_started">
        <source>since it started</source>
        <translation>desde que se abrió</translation>
    </message>
    <message id="apps.others">
        <source>System and other users</source>
        <translation>Sistema y otros usuarios</translation>
    </message>
    <message id="apps.rest">
        <source>Other applications</source>
        <translation>Otras aplicaciones</translation>
    </message>
    <message id="apps.method_measured">
        <source>Measured by the system for each application</source>
        <translation>Medida por el sistema para cada aplicación</translation>
    </message>
    <message id="apps.method_chip_share">
        <source>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</source>
        <translation>Estimada: la energía medida del procesador, repartida según el tiempo de CPU de cada aplicación</translation>
    </message>
    <message id="apps.method_system_share">
        <source>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</source>
        <translation>Estimada: la parte del procesador en la potencia medida del sistema, repartida según el tiempo de CPU</translation>
    </message>
    <message id="apps.method_cpu_time">
        <source>CPU time only: this machine does not measure energy</source>
        <translation>Solo tiempo de CPU: este equipo no mide la energía</translation>
    </message>
    <message id="apps.estimated_legend">
        <source>%1 marks an estimate</source>
        <translation>%1 indica una estimación</translation>
    </message>
    <message id="apps.estimated">
        <source>estimated</source>
        <translation>estimada</translation>
    </message>
    <message id="apps.measured">
        <source>measured</source>
        <translation>medida</translation>
    </message>
    <message id="apps.none">
        <source>Nothing recorded for this period yet</source>
        <translation>Aún no hay nada registrado en este periodo</translation>
    </message>
    <message id="apps.history_off">
        <source>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</source>
        <translation>Ferrow no guarda historial, así que solo la sesión actual tiene una lista. Activa «Guardar el historial de energía» en Historial para conservar los próximos días.</translation>
    </message>
    <message id="apps.reading">
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message id="apps.seconds" numerus="yes">
        <source>%Ln s</source>
        <translation>
            <numerusform>%Ln s</numerusform>
            <numerusform>%Ln s</numerusform>
        </translation>
    </message>
    <message id="accessibility.percent">
        <source>%1 percent</source>
        <translation>%1 por ciento</translation>
    </message>
    <message id="accessibility.watt_hours">
        <source>%1 watt-hours</source>
        <translation>%1 vatios hora</translation>
    </message>
    <message id="accessibility.milliwatt_hours" numerus="yes">
        <source>%Ln mWh</source>
        <translation>
            <numerusform>%Ln milivatio hora</numerusform>
            <numerusform>%Ln milivatios hora</numerusform>
        </translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="status.external_power">
        <source>External power</source>
        <translation>Netzbetrieb</translation>
    </message>
    <message id="status.waiting_telemetry">
        <source>Waiting for telemetry</source>
        <translation>Warte auf Messwerte</translation>
    </message>
    <message id="status.on_battery">
        <source>On battery</source>
        <translation>Akkubetrieb</translation>
    </message>
    <message id="status.charging">
        <source>Charging</source>
        <translation>Wird geladen</translation>
    </message>
    <message id="status.power_connected">
        <source>Not charging</source>
        <translation>Lädt nicht</translation>
    </message>
    <message id="status.fully_charged">
        <source>Fully charged</source>
        <translation>Vollständig geladen</translation>
    </message>
    <message id="power.ac_connected">
        <source>AC power connected</source>
        <translation>Netzteil angeschlossen</translation>
    </message>
    <message id="power.dc_disconnected">
        <source>No external power</source>
        <translation>Keine externe Stromversorgung</translation>
    </message>
    <message id="duration.minutes">
        <source>%L1 min</source>
        <translation>%L1 Min.</translation>
    </message>
    <message id="duration.hours_minutes">
        <source>%L1 h %L2 min</source>
        <translation>%L1 Std. %L2 Min.</translation>
    </message>
    <message id="battery.health.good">
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message id="battery.health.fair">
        <source>Fair</source>
        <translation>Mittel</translation>
    </message>
    <message id="battery.health.poor">
        <source>Poor</source>
        <translation>Schlecht</translation>
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
        <translation>Leistungsmonitor</translation>
    </message>
    <message id="app.menu_subtitle_simulated">
        <source>Simulated notebook · not this machine</source>
        <translation>Simuliertes Notebook · nicht dieser Rechner</translation>
    </message>
    <message id="app.menu_subtitle_simulated_desktop">
        <source>Simulated desktop · not this machine</source>
        <translation>Simulierter Desktop · nicht dieser Rechner</translation>
    </message>
    <message id="app.version">
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message id="status.live">
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message id="status.waiting">
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message id="power.battery_discharge">
        <source>BATTERY DISCHARGE</source>
        <translation>AKKU-ENTLADUNG</translation>
    </message>
    <message id="power.system_total">
        <source>System total</source>
        <translation>System gesamt</translation>
    </message>
    <message id="power.live_flow">
        <source>Live power flow</source>
        <translation>Energiefluss live</translation>
    </message>
    <message id="power.adapter">
        <source>Adapter</source>
        <translation>Netzteil</translation>
    </message>
    <message id="power.mac_system">
        <source>Mac system</source>
        <translation>Mac-System</translation>
    </message>
    <message id="device.power_source">
        <source>Power source</source>
        <translation>Stromquelle</translation>
    </message>
    <message id="device.sample_rate">
        <source>Sample rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message id="battery.title">
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message id="battery.not_detected">
        <source>No battery detected</source>
        <translation>Kein Akku erkannt</translation>
    </message>
    <message id="battery.desktop_description">
        <source>This Mac runs on external power only.</source>
        <translation>Dieser Mac läuft nur mit externer Stromversorgung.</translation>
    </message>
    <message id="battery.cycle_count">
        <source>Cycle count</source>
        <translation>Ladezyklen</translation>
    </message>
    <message id="battery.voltage">
        <source>Voltage</source>
        <translation>Spannung</translation>
    </message>
    <message id="battery.current">
        <source>Current</source>
        <translation>Stromstärke</translation>
    </message>
    <message id="battery.charge_status">
        <source>Charge status</source>
        <translation>Ladestatus</translation>
    </message>
    <message id="battery.status">
        <source>Battery status</source>
        <translation>Akkustatus</translation>
    </message>
    <message id="battery.estimated_full">
        <source>Time to full</source>
        <translation>Voll in</translation>
    </message>
    <message id="battery.health">
        <source>Health</source>
        <translation>Zustand</translation>
    </message>
    <message id="battery.temperature">
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message id="battery.health_value">
        <source>%1% · %2</source>
        <translation>%1 % · %2</translation>
    </message>
    <message id="setting.login_awaiting_approval">
        <source>Approve Ferrow in System Settings › Login Items to start it at login</source>
        <translation>In Systemeinstellungen › Anmeldeobjekte erlauben</translation>
    </message>
    <message id="setting.login_needs_applications">
        <source>Move Ferrow to Applications to start it at login</source>
        <translation>Zum Starten beim Anmelden in „Programme“ bewegen</translation>
    </message>
    <message id="setting.launch_at_login">
        <source>Launch at login</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message id="setting.menu_bar_power">
        <source>Show watts in menu bar</source>
        <translation>Watt in der Menüleiste zeigen</translation>
    </message>
    <message id="action.open_details">
        <source>Open details</source>
        <translation>Details öffnen</translation>
    </message>
    <message id="action.open_details_subtitle">
        <source>Charts, cells and battery history</source>
        <translation>Diagramme, Zellen und Akkuverlauf</translation>
    </message>
    <message id="action.open_official_website">
        <source>Open the Ferrow website</source>
        <translation>Ferrow-Website öffnen</translation>
    </message>
    <message id="action.quit">
        <source>Quit Ferrow</source>
        <translation>Ferrow beenden</translation>
    </message>
    <message id="action.show_dashboard">
        <source>Show dashboard</source>
        <translation>Dashboard anzeigen</translation>
    </message>
    <message id="tray.no_tray_notice">
        <source>No menu-bar area on this desktop: the dashboard opens as a window.</source>
        <translation>Kein Menüleistenbereich auf diesem Desktop: Das Dashboard öffnet sich als Fenster.</translation>
    </message>
    <message id="tray.tooltip">
        <source>Ferrow · %1</source>
        <translation>Ferrow · %1</translation>
    </message>
    <message id="tray.tooltip_simulated">
        <source>Ferrow (simulated) · %1</source>
        <translation>Ferrow (simuliert) · %1</translation>
    </message>
    <message id="window.device_details">
        <source>Device details</source>
        <translation>Gerätedetails</translation>
    </message>
    <message id="app.subtitle">
        <source>Power, battery and cells at a glance</source>
        <translation>Leistung, Akku und Zellen auf einen Blick</translation>
    </message>
    <message id="action.refresh">
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message id="action.refresh_help">
        <source>Take a reading now</source>
        <translation>Jetzt messen</translation>
    </message>
    <message id="action.toggle_sidebar">
        <source>Show or hide the sidebar</source>
        <translation>Seitenleiste ein- oder ausblenden</translation>
    </message>
    <message id="sidebar.monitor">
        <source>Monitor</source>
        <translation>Überwachung</translation>
    </message>
    <message id="sidebar.system">
        <source>System</source>
        <translation>System</translation>
    </message>
    <message id="sidebar.updated_at">
        <source>Updated at %1</source>
        <translation>Aktualisiert um %1</translation>
    </message>
    <message id="accessibility.scroll_to">
        <source>Scroll to %1</source>
        <translation>Zu „%1“ blättern</translation>
    </message>
    <message id="section.overview">
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message id="section.power">
        <source>Power</source>
        <translation>Leistung</translation>
    </message>
    <message id="section.battery">
        <source>Charge and health</source>
        <translation>Ladung und Zustand</translation>
    </message>
    <message id="section.cells">
        <source>Cells</source>
        <translation>Zellen</translation>
    </message>
    <message id="section.device">
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message id="overview.external_power">
        <source>Running on external power</source>
        <translation>Betrieb mit externer Stromversorgung</translation>
    </message>
    <message id="overview.charging">
        <source>Charging</source>
        <translation>Wird geladen</translation>
    </message>
    <message id="overview.no_battery_subtitle">
        <source>This Mac has no battery; all power comes from its supply.</source>
        <translation>Dieser Mac hat keinen Akku; die gesamte Energie kommt aus seinem Netzteil.</translation>
    </message>
    <message id="overview.power_distribution_subtitle">
        <source>Adapter power is shared between the system and the battery.</source>
        <translation>Die Leistung des Netzteils teilen sich System und Akku.</translation>
    </message>
    <message id="overview.battery_subtitle">
        <source>The battery supplies the whole system.</source>
        <translation>Der Akku versorgt das gesamte System.</translation>
    </message>
    <message id="power.distribution">
        <source>Power distribution</source>
        <translation>Leistungsverteilung</translation>
    </message>
    <message id="power.chip_permission">
        <source>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</source>
        <translation>Die Chip-Leistung bleibt leer: Auf diesem Linux-Rechner darf nur root die Energiezähler des Prozessors lesen. Der Abschnitt „Chip power on Linux“ der README zeigt eine udev-Regel, die es erlaubt.</translation>
    </message>
    <message id="power.dc_input">
        <source>DC input</source>
        <translation>DC-Eingang</translation>
    </message>
    <message id="power.battery_power">
        <source>Battery power</source>
        <translation>Akkuleistung</translation>
    </message>
    <message id="power_history.title">
        <source>Power history</source>
        <translation>Leistungsverlauf</translation>
    </message>
    <message id="power_history.pwr">
        <source>PWR</source>
        <translation>PWR</translation>
    </message>
    <message id="power_history.range">
        <source>Time range</source>
        <translation>Zeitraum</translation>
    </message>
    <message id="power_history.minutes">
        <source>%L1 min</source>
        <translation>%L1 Min.</translation>
    </message>
    <message id="power_history.waiting">
        <source>Waiting for readings</source>
        <translation>Warte auf Messwerte</translation>
    </message>
    <message id="power_history.waiting_description">
        <source>The chart fills in once a second.</source>
        <translation>Das Diagramm füllt sich jede Sekunde.</translation>
    </message>
    <message id="power_history.average">
        <source>Average</source>
        <translation>Durchschnitt</translation>
    </message>
    <message id="power_history.peak">
        <source>Peak</source>
        <translation>Spitze</translation>
    </message>
    <message id="power_history.time">
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message id="power_history.watts">
        <source>Watts</source>
        <translation>Watt</translation>
    </message>
    <message id="battery.not_detected_description">
        <source>This Mac runs on external power only.</source>
        <translation>Dieser Mac läuft nur mit externer Stromversorgung.</translation>
    </message>
    <message id="battery.design_capacity">
        <source>Design capacity</source>
        <translation>Nennkapazität</translation>
    </message>
    <message id="battery.full_charge_capacity">
        <source>Full charge capacity</source>
        <translation>Volle Ladekapazität</translation>
    </message>
    <message id="battery.nominal_full_charge_capacity">
        <source>Nominal full charge capacity</source>
        <translation>Nominelle volle Ladekapazität</translation>
    </message>
    <message id="capacity.mah">
        <source>%L1 mAh</source>
        <translation>%L1 mAh</translation>
    </message>
    <message id="count.times" numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln Mal</numerusform>
            <numerusform>%Ln Mal</numerusform>
        </translation>
    </message>
    <message id="cells.status">
        <source>Cell voltages</source>
        <translation>Zellspannungen</translation>
    </message>
    <message id="cells.no_data">
        <source>No cell voltages</source>
        <translation>Keine Zellspannungen</translation>
    </message>
    <message id="cells.no_data_description">
        <source>This battery does not report its cells.</source>
        <translation>Dieser Akku meldet seine Zellen nicht.</translation>
    </message>
    <message id="cells.source.registry">
        <source>Reported by the battery</source>
        <translation>Vom Akku gemeldet</translation>
    </message>
    <message id="cells.source.smc">
        <source>Read from the system management controller</source>
        <translation>Vom System Management Controller gelesen</translation>
    </message>
    <message id="device.title">
        <source>This Mac</source>
        <translation>Dieser Mac</translation>
    </message>
    <message id="device.once_per_second">
        <source>Once a second</source>
        <translation>Einmal pro Sekunde</translation>
    </message>
    <message id="device.gpu_power">
        <source>GPU power</source>
        <translation>GPU-Leistung</translation>
    </message>
    <message id="device.battery_serial">
        <source>Battery serial</source>
        <translation>Akku-Seriennummer</translation>
    </message>
    <message id="device.total_operating_time">
        <source>Total operating time</source>
        <translation>Gesamtbetriebszeit</translation>
    </message>
    <message id="device.history">
        <source>Lifetime history</source>
        <translation>Verlauf über die Lebensdauer</translation>
    </message>
    <message id="duration.days_hours">
        <source>%L1 d %L2 h</source>
        <translation>%L1 T. %L2 Std.</translation>
    </message>
    <message id="history.max_battery_temperature">
        <source>Highest battery temperature</source>
        <translation>Höchste Akkutemperatur</translation>
    </message>
    <message id="history.min_battery_temperature">
        <source>Lowest battery temperature</source>
        <translation>Niedrigste Akkutemperatur</translation>
    </message>
    <message id="history.average_battery_temperature">
        <source>Average battery temperature</source>
        <translation>Mittlere Akkutemperatur</translation>
    </message>
    <message id="history.max_pack_voltage">
        <source>Highest pack voltage</source>
        <translation>Höchste Akkupack-Spannung</translation>
    </message>
    <message id="history.min_pack_voltage">
        <source>Lowest pack voltage</source>
        <translation>Niedrigste Akkupack-Spannung</translation>
    </message>
    <message id="history.max_charge_current">
        <source>Highest charge current</source>
        <translation>Höchster Ladestrom</translation>
    </message>
    <message id="history.max_discharge_current">
        <source>Highest discharge current</source>
        <translation>Höchster Entladestrom</translation>
    </message>
    <message id="history.safety_protection_count">
        <source>Safety protection events</source>
        <translation>Schutzereignisse</translation>
    </message>
    <message id="battery.packs">
        <source>Batteries</source>
        <translation>Akkus</translation>
    </message>
    <message id="battery.pack_charge">
        <source>Charge</source>
        <translation>Ladung</translation>
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
        <translation>Verlauf</translation>
    </message>
    <message id="energy_history.off">
        <source>History is off.</source>
        <translation>Der Verlauf ist ausgeschaltet.</translation>
    </message>
    <message id="energy_history.failing">
        <source>History is not being kept: %1</source>
        <translation>Es wird kein Verlauf geführt: %1</translation>
    </message>
    <message id="energy_history.empty">
        <source>No history yet: Ferrow records energy once a minute.</source>
        <translation>Noch kein Verlauf: Ferrow zeichnet die Energie einmal pro Minute auf.</translation>
    </message>
    <message id="energy_history.since">
        <source>Ferrow has been keeping history since %1</source>
        <translation>Ferrow führt den Verlauf seit %1</translation>
    </message>
    <message id="energy_history.range">
        <source>Range</source>
        <translation>Zeitraum</translation>
    </message>
    <message id="energy_history.week">
        <source>7 days</source>
        <translation>7 Tage</translation>
    </message>
    <message id="energy_history.month">
        <source>30 days</source>
        <translation>30 Tage</translation>
    </message>
    <message id="energy_history.year">
        <source>12 months</source>
        <translation>12 Monate</translation>
    </message>
    <message id="energy_history.energy">
        <source>Energy</source>
        <translation>Energie</translation>
    </message>
    <message id="energy_history.adapter">
        <source>From the adapter</source>
        <translation>Vom Netzteil</translation>
    </message>
    <message id="energy_history.battery">
        <source>From the battery</source>
        <translation>Vom Akku</translation>
    </message>
    <message id="energy_history.nothing_in_range">
        <source>Nothing recorded in this period</source>
        <translation>In diesem Zeitraum nichts aufgezeichnet</translation>
    </message>
    <message id="energy_history.sessions">
        <source>Recent sessions</source>
        <translation>Letzte Sitzungen</translation>
    </message>
    <message id="energy_history.no_sessions">
        <source>No sessions recorded yet.</source>
        <translation>Noch keine Sitzungen aufgezeichnet.</translation>
    </message>
    <message id="energy_history.batteries">
        <source>Battery health over time</source>
        <translation>Akkuzustand im Verlauf</translation>
    </message>
    <message id="energy_history.health">
        <source>Health (%)</source>
        <translation>Zustand (%)</translation>
    </message>
    <message id="energy_history.capacity">
        <source>Full-charge capacity (mAh)</source>
        <translation>Volle Ladekapazität (mAh)</translation>
    </message>
    <message id="session.on_battery">
        <source>On battery</source>
        <translation>Akkubetrieb</translation>
    </message>
    <message id="session.on_adapter">
        <source>On the adapter</source>
        <translation>Am Netzteil</translation>
    </message>
    <message id="session.on_battery_for">
        <source>On battery for %1 · %2 used</source>
        <translation>Seit %1 im Akkubetrieb · %2 verbraucht</translation>
    </message>
    <message id="session.on_adapter_for">
        <source>On the adapter for %1 · %2 delivered</source>
        <translation>Seit %1 am Netzteil · %2 geliefert</translation>
    </message>
    <message id="session.mean_peak">
        <source>Mean %1 · Peak %2</source>
        <translation>Mittel %1 · Spitze %2</translation>
    </message>
    <message id="session.two_units">
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message id="session.minutes" numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln Min.</numerusform>
            <numerusform>%Ln Min.</numerusform>
        </translation>
    </message>
    <message id="session.hours" numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln Std.</numerusform>
            <numerusform>%Ln Std.</numerusform>
        </translation>
    </message>
    <message id="session.days" numerus="yes">
        <source>%Ln d</source>
        <translation>
            <numerusform>%Ln Tag</numerusform>
            <numerusform>%Ln Tage</numerusform>
        </translation>
    </message>
    <message id="history.keep">
        <source>Keep energy history</source>
        <translation>Energieverlauf speichern</translation>
    </message>
    <message id="history.turn_off_title">
        <source>Turn off energy history?</source>
        <translation>Energieverlauf ausschalten?</translation>
    </message>
    <message id="history.turn_off_text">
        <source>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</source>
        <translation>Ferrow löscht den auf diesem Computer gespeicherten Energieverlauf. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message id="history.turn_off_confirm">
        <source>Delete history</source>
        <translation>Verlauf löschen</translation>
    </message>
    <message id="power.computer_system">
        <source>System</source>
        <translation>System</translation>
    </message>
    <message id="battery.computer_external_only">
        <source>This computer runs on external power only.</source>
        <translation>Dieser Computer läuft nur mit externer Stromversorgung.</translation>
    </message>
    <message id="overview.computer_no_battery_subtitle">
        <source>This computer has no battery; all power comes from its supply.</source>
        <translation>Dieser Computer hat keinen Akku; die gesamte Energie kommt aus seinem Netzteil.</translation>
    </message>
    <message id="device.computer_title">
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message id="accessibility.not_available">
        <source>not available</source>
        <translation>nicht verfügbar</translation>
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
        <translation>%1 Watt</translation>
    </message>
    <message id="accessibility.volts">
        <source>%1 volts</source>
        <translation>%1 Volt</translation>
    </message>
    <message id="accessibility.amperes">
        <source>%1 amperes</source>
        <translation>%1 Ampere</translation>
    </message>
    <message id="accessibility.degrees_celsius">
        <source>%1 degrees Celsius</source>
        <translation>%1 Grad Celsius</translation>
    </message>
    <message id="accessibility.milliampere_hours" numerus="yes">
        <source>%Ln mAh</source>
        <translation>
            <numerusform>%Ln Milliamperestunde</numerusform>
            <numerusform>%Ln Milliamperestunden</numerusform>
        </translation>
    </message>
    <message id="accessibility.hertz" numerus="yes">
        <source>%Ln Hz</source>
        <translation>
            <numerusform>%Ln Hertz</numerusform>
            <numerusform>%Ln Hertz</numerusform>
        </translation>
    </message>
    <message id="accessibility.cell">
        <source>Cell %L1</source>
        <translation>Zelle %L1</translation>
    </message>
    <message id="accessibility.flow_adapter">
        <source>Adapter %1 to system %2</source>
        <translation>Netzteil %1 an System %2</translation>
    </message>
    <message id="accessibility.flow_battery">
        <source>Battery %1 to system %2</source>
        <translation>Akku %1 an System %2</translation>
    </message>
    <message id="accessibility.flow_charging">
        <source>Adapter %1 to system %2 and battery %3</source>
        <translation>Netzteil %1 an System %2 und Akku %3</translation>
    </message>
    <message id="accessibility.flow_discharging">
        <source>Adapter %1 and battery %2 to system %3</source>
        <translation>Netzteil %1 und Akku %2 an System %3</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.title">
        <source>Charger cannot keep up</source>
        <translation>Netzteil kommt nicht nach</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body">
        <source>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</source>
        <translation>Der Akku entlädt sich %1, obwohl externe Stromversorgung angeschlossen ist: Netzteil %2 (%3, %4), System %5, Akku %6.</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body_unmeasured">
        <source>The battery has been draining %1 although external power is connected: system %2, battery %3.</source>
        <translation>Der Akku entlädt sich %1, obwohl externe Stromversorgung angeschlossen ist: System %2, Akku %3.</translation>
    </message>
    <message id="alert.charging_slowly.title">
        <source>Charging slowly</source>
        <translation>Akku lädt langsam</translation>
    </message>
    <message id="alert.charging_slowly.body_five_volts">
        <source>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</source>
        <translation>Die USB-C-Quelle liefert nur %1, daher lädt der Akku langsam: Netzteil %2, System %3, Akku %4.</translation>
    </message>
    <message id="alert.charging_slowly.body_adapter">
        <source>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</source>
        <translation>Das Netzteil liefert weniger, als das System %1 im Mittel verbraucht hat, daher lädt der Akku langsam: Netzteil %2, System %3.</translation>
    </message>
    <message id="alert.battery_hot.title">
        <source>Battery hot</source>
        <translation>Akku heiß</translation>
    </message>
    <message id="alert.battery_hot.body">
        <source>The battery is at %1, at or above the limit of %2.</source>
        <translation>Der Akku hat %1 und liegt damit an oder über der Grenze von %2.</translation>
    </message>
    <message id="alert.battery_hot.body_charging">
        <source>The battery has been at %1 or warmer %2 while charging: now %3.</source>
        <translation>Der Akku hat beim Laden %1 oder mehr, und das %2: jetzt %3.</translation>
    </message>
    <message id="alert.cells_out_of_balance.title">
        <source>Battery cells out of balance</source>
        <translation>Akkuzellen unausgeglichen</translation>
    </message>
    <message id="alert.cells_out_of_balance.body">
        <source>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</source>
        <translation>Die Zellspannungen liegen in Ruhe mehr als %1 auseinander, und das %2: jetzt %3 (%4 bis %5).</translation>
    </message>
    <message id="alert.charge_level_reached.title">
        <source>Charge level reached</source>
        <translation>Ladestand erreicht</translation>
    </message>
    <message id="alert.charge_level_reached.body">
        <source>The battery has reached the chosen level of %1.</source>
        <translation>Der Akku hat den gewählten Ladestand von %1 erreicht.</translation>
    </message>
    <message id="alert.for_minutes" numerus="yes">
        <source>for %Ln minutes</source>
        <translation>
            <numerusform>seit %Ln Minute</numerusform>
            <numerusform>seit %Ln Minuten</numerusform>
        </translation>
    </message>
    <message id="alert.over_last_minutes" numerus="yes">
        <source>over the last %Ln minutes</source>
        <translation>
            <numerusform>in der letzten %Ln Minute</numerusform>
            <numerusform>in den letzten %Ln Minuten</numerusform>
        </translation>
    </message>
    <message id="alert.active_several" numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 und %Ln weitere</numerusform>
            <numerusform>%1 und %Ln weitere</numerusform>
        </translation>
    </message>
    <message id="alerts.title">
        <source>Alerts</source>
        <translation>Warnungen</translation>
    </message>
    <message id="alerts.caption" numerus="yes">
        <source>Each alert is shown once and repeated at most every %Ln minutes while it holds.</source>
        <translation>
            <numerusform>Jede Warnung erscheint einmal und wird, solange sie besteht, höchstens jede %Ln Minute wiederholt.</numerusform>
            <numerusform>Jede Warnung erscheint einmal und wird, solange sie besteht, höchstens alle %Ln Minuten wiederholt.</numerusform>
        </translation>
    </message>
    <message id="alerts.hot_while_charging">
        <source>While charging, above</source>
        <translation>Beim Laden über</translation>
    </message>
    <message id="alerts.hot_any_time">
        <source>At any time, above</source>
        <translation>Jederzeit über</translation>
    </message>
    <message id="alerts.notifications_denied">
        <source>Notifications are turned off for Ferrow in the system&apos;s settings</source>
        <translation>Mitteilungen sind für Ferrow in den Systemeinstellungen ausgeschaltet</translation>
    </message>
    <message id="section.applications">
        <source>Applications</source>
        <translation>Apps</translation>
    </message>
    <message id="apps.panel_title">
        <source>Energy by application</source>
        <translation>Energie nach App</translation>
    </message>
    <message id="apps.popover_title">
        <source>Most energy this session</source>
        <translation>Meiste Energie in dieser Sitzung</translation>
    </message>
    <message id="apps.popover_title_since_start">
        <source>Most energy since Ferrow started</source>
        <translation>Meiste Energie seit dem Start von Ferrow</translation>
    </message>
    <message id="apps.popover_none">
        <source>Nothing measured yet this session</source>
        <translation>In dieser Sitzung noch nichts gemessen</translation>
    </message>
    <message id="apps.popover_none_since_start">
        <source>Nothing measured yet</source>
        <translation>Noch nichts gemessen</translation>
    </message>
    <message id="apps.period">
        <source>Period</source>
        <translation>Zeitraum</translation>
    </message>
    <message id="apps.period_session">
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message id="apps.period_today">
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message id="apps.period_7_days">
        <source>7 days</source>
        <translation>7 Tage</translation>
    </message>
    <message id="apps.period_30_days">
        <source>30 days</source>
        <translation>30 Tage</translation>
    </message>
    <message id="apps.covered">
        <source>Over %1</source>
        <translation>Über %1</translation>
    </message>
    <message id="apps.column_application">
        <source>Application</source>
        <translation>App</translation>
    </message>
    <message id="apps.column_energy">
        <source>Energy</source>
        <translation>Energie</translation>
    </message>
    <message id="apps.column_mean_power">
        <source>Mean power</source>
        <translation>Mittlere Leistung</translation>
    </message>
    <message id="apps.column_share">
        <source>Share</source>
        <translation>Anteil</translation>
    </message>
    <message id="apps.column_cpu_time">
        <source>CPU time</source>
        <translation>CPU-Zeit</translation>
    </message>
    <message id="apps.column_cpu_share">
        <source>Share of CPU time</source>
        <translation>Anteil an der CPU-Zeit</translation>
    </message>
    <message id="apps.sort_by_energy">
        <source>Sort by energy</source>
        <translation>Nach Energie sortieren</translation>
    </message>
    <message id="apps.sort_by_mean_power">
        <source>Sort by mean power</source>
        <translation>Nach mittlerer Leistung sortieren</translation>
    </message>
    <message id="apps.self">
        <source>Ferrow (this app)</source>
        <translation>Ferrow (diese App)</translation>
    </message>
    <message id="apps.since_started">
        <source>since it started</source>
        <translation>seit dem Start</translation>
    </message>
    <message id="apps.others">
        <source>System and other users</source>
        <translation>System und andere Benutzer</translation>
    </message>
    <message id="apps.rest">
        <source>Other applications</source>
        <translation>Andere Apps</translation>
    </message>
    <message id="apps.method_measured">
        <source>Measured by the system for each application</source>
        <translation>Vom System für jede App gemessen</translation>
    </message>
    <message id="apps.method_chip_share">
        <source>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</source>
        <translation>Geschätzt: die gemessene Energie des Prozessors, nach der CPU-Zeit jeder App aufgeteilt</translation>
    </message>
    <message id="apps.method_system_share">
        <source>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</source>
        <translation>Geschätzt: der Anteil des Prozessors an der gemessenen Leistung des Systems, nach CPU-Zeit aufgeteilt</translation>
    </message>
    <message id="apps.method_cpu_time">
        <source>CPU time only: this machine does not measure energy</source>
        <translation>Nur CPU-Zeit: Dieser Rechner misst keine Energie</translation>
    </message>
    <message id="apps.estimated_legend">
        <source>%1 marks an estimate</source>
        <translation>%1 kennzeichnet einen geschätzten Wert</translation>
    </message>
    <message id="apps.estimated">
        <source>estimated</source>
        <translation>geschätzt</translation>
    </message>
    <message id="apps.measured">
        <source>measured</source>
        <translation>gemessen</translation>
    </message>
    <message id="apps.none">
        <source>Nothing recorded for this period yet</source>
        <translation>Für diesen Zeitraum noch nichts aufgezeichnet</translation>
    </message>
    <message id="apps.history_off">
        <source>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</source>
        <translation>Ferrow speichert keinen Verlauf, daher hat nur die aktuelle Sitzung eine Liste. Für die kommenden Tage unter „Verlauf“ die Option „Energieverlauf speichern“ einschalten.</translation>
    </message>
    <message id="apps.reading">
        <source>Reading…</source>
        <translation>Wird gelesen …</translation>
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
        <translation>%1 Prozent</translation>
    </message>
    <message id="accessibility.watt_hours">
        <source>%1 watt-hours</source>
        <translation>%1 Wattstunden</translation>
    </message>
    <message id="accessibility.milliwatt_hours" numerus="yes">
        <source>%Ln mWh</source>
        <translation>
            <numerusform>%Ln Milliwattstunde</numerusform>
            <numerusform>%Ln Milliwattstunden</numerusform>
        </translation>
    </message>
</context>
</TS>

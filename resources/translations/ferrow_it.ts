<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name></name>
    <message id="status.external_power">
        <source>External power</source>
        <translation>Alimentazione esterna</translation>
    </message>
    <message id="status.waiting_telemetry">
        <source>Waiting for telemetry</source>
        <translation>In attesa dei dati</translation>
    </message>
    <message id="status.on_battery">
        <source>On battery</source>
        <translation>A batteria</translation>
    </message>
    <message id="status.charging">
        <source>Charging</source>
        <translation>In carica</translation>
    </message>
    <message id="status.power_connected">
        <source>Not charging</source>
        <translation>Non in carica</translation>
    </message>
    <message id="status.fully_charged">
        <source>Fully charged</source>
        <translation>Carica completa</translation>
    </message>
    <message id="power.ac_connected">
        <source>AC power connected</source>
        <translation>Alimentatore collegato</translation>
    </message>
    <message id="power.dc_disconnected">
        <source>No external power</source>
        <translation>Nessuna alimentazione esterna</translation>
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
        <translation>Buona</translation>
    </message>
    <message id="battery.health.fair">
        <source>Fair</source>
        <translation>Discreta</translation>
    </message>
    <message id="battery.health.poor">
        <source>Poor</source>
        <translation>Scarsa</translation>
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
        <translation>Monitor energetico</translation>
    </message>
    <message id="app.menu_subtitle_simulated">
        <source>Simulated notebook · not this machine</source>
        <translation>Portatile simulato · non questo computer</translation>
    </message>
    <message id="app.menu_subtitle_simulated_desktop">
        <source>Simulated desktop · not this machine</source>
        <translation>Desktop simulato · non questo computer</translation>
    </message>
    <message id="app.version">
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message id="status.live">
        <source>Live</source>
        <translation>In diretta</translation>
    </message>
    <message id="status.waiting">
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message id="power.battery_discharge">
        <source>BATTERY DISCHARGE</source>
        <translation>SCARICA BATTERIA</translation>
    </message>
    <message id="power.system_total">
        <source>System total</source>
        <translation>Totale sistema</translation>
    </message>
    <message id="power.live_flow">
        <source>Live power flow</source>
        <translation>Flusso di energia in diretta</translation>
    </message>
    <message id="power.adapter">
        <source>Adapter</source>
        <translation>Alimentatore</translation>
    </message>
    <message id="power.mac_system">
        <source>Mac system</source>
        <translation>Sistema Mac</translation>
    </message>
    <message id="device.power_source">
        <source>Power source</source>
        <translation>Fonte di alimentazione</translation>
    </message>
    <message id="device.sample_rate">
        <source>Sample rate</source>
        <translation>Frequenza di campionamento</translation>
    </message>
    <message id="battery.title">
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message id="battery.not_detected">
        <source>No battery detected</source>
        <translation>Nessuna batteria rilevata</translation>
    </message>
    <message id="battery.desktop_description">
        <source>This Mac runs on external power only.</source>
        <translation>Questo Mac funziona solo con alimentazione esterna.</translation>
    </message>
    <message id="battery.cycle_count">
        <source>Cycle count</source>
        <translation>Cicli di carica</translation>
    </message>
    <message id="battery.voltage">
        <source>Voltage</source>
        <translation>Tensione</translation>
    </message>
    <message id="battery.current">
        <source>Current</source>
        <translation>Corrente</translation>
    </message>
    <message id="battery.charge_status">
        <source>Charge status</source>
        <translation>Stato di carica</translation>
    </message>
    <message id="battery.status">
        <source>Battery status</source>
        <translation>Stato della batteria</translation>
    </message>
    <message id="battery.estimated_full">
        <source>Time to full</source>
        <translation>Carica completa tra</translation>
    </message>
    <message id="battery.health">
        <source>Health</source>
        <translation>Condizione</translation>
    </message>
    <message id="battery.temperature">
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message id="battery.health_value">
        <source>%1% · %2</source>
        <translation>%1% · %2</translation>
    </message>
    <message id="setting.login_awaiting_approval">
        <source>Approve Ferrow in System Settings › Login Items to start it at login</source>
        <translation>Consenti Ferrow in Impostazioni di Sistema › Elementi login</translation>
    </message>
    <message id="setting.login_needs_applications">
        <source>Move Ferrow to Applications to start it at login</source>
        <translation>Sposta Ferrow in Applicazioni per aprirlo al login</translation>
    </message>
    <message id="setting.launch_at_login">
        <source>Launch at login</source>
        <translation>Apri al login</translation>
    </message>
    <message id="setting.menu_bar_power">
        <source>Show watts in menu bar</source>
        <translation>Mostra i watt nella barra dei menu</translation>
    </message>
    <message id="action.open_details">
        <source>Open details</source>
        <translation>Apri dettagli</translation>
    </message>
    <message id="action.open_details_subtitle">
        <source>Charts, cells and battery history</source>
        <translation>Grafici, celle e cronologia della batteria</translation>
    </message>
    <message id="action.open_official_website">
        <source>Open the Ferrow website</source>
        <translation>Apri il sito web di Ferrow</translation>
    </message>
    <message id="action.quit">
        <source>Quit Ferrow</source>
        <translation>Esci da Ferrow</translation>
    </message>
    <message id="action.show_dashboard">
        <source>Show dashboard</source>
        <translation>Mostra pannello</translation>
    </message>
    <message id="tray.no_tray_notice">
        <source>No menu-bar area on this desktop: the dashboard opens as a window.</source>
        <translation>Nessuna area della barra dei menu su questo desktop: il pannello si apre come finestra.</translation>
    </message>
    <message id="tray.tooltip">
        <source>Ferrow · %1</source>
        <translation>Ferrow · %1</translation>
    </message>
    <message id="tray.tooltip_simulated">
        <source>Ferrow (simulated) · %1</source>
        <translation>Ferrow (simulato) · %1</translation>
    </message>
    <message id="window.device_details">
        <source>Device details</source>
        <translation>Dettagli dispositivo</translation>
    </message>
    <message id="app.subtitle">
        <source>Power, battery and cells at a glance</source>
        <translation>Potenza, batteria e celle a colpo d’occhio</translation>
    </message>
    <message id="action.refresh">
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message id="action.refresh_help">
        <source>Take a reading now</source>
        <translation>Esegui una lettura ora</translation>
    </message>
    <message id="action.toggle_sidebar">
        <source>Show or hide the sidebar</source>
        <translation>Mostra o nascondi la barra laterale</translation>
    </message>
    <message id="sidebar.monitor">
        <source>Monitor</source>
        <translation>Monitoraggio</translation>
    </message>
    <message id="sidebar.system">
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message id="sidebar.updated_at">
        <source>Updated at %1</source>
        <translation>Aggiornato alle %1</translation>
    </message>
    <message id="accessibility.scroll_to">
        <source>Scroll to %1</source>
        <translation>Vai a «%1»</translation>
    </message>
    <message id="section.overview">
        <source>Overview</source>
        <translation>Panoramica</translation>
    </message>
    <message id="section.power">
        <source>Power</source>
        <translation>Potenza</translation>
    </message>
    <message id="section.battery">
        <source>Charge and health</source>
        <translation>Carica e condizione</translation>
    </message>
    <message id="section.cells">
        <source>Cells</source>
        <translation>Celle</translation>
    </message>
    <message id="section.device">
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message id="overview.external_power">
        <source>Running on external power</source>
        <translation>In funzione con alimentazione esterna</translation>
    </message>
    <message id="overview.charging">
        <source>Charging</source>
        <translation>In carica</translation>
    </message>
    <message id="overview.no_battery_subtitle">
        <source>This Mac has no battery; all power comes from its supply.</source>
        <translation>Questo Mac non ha batteria; tutta l’energia arriva dal suo alimentatore.</translation>
    </message>
    <message id="overview.power_distribution_subtitle">
        <source>Adapter power is shared between the system and the battery.</source>
        <translation>La potenza dell’alimentatore è divisa tra il sistema e la batteria.</translation>
    </message>
    <message id="overview.battery_subtitle">
        <source>The battery supplies the whole system.</source>
        <translation>La batteria alimenta l’intero sistema.</translation>
    </message>
    <message id="power.distribution">
        <source>Power distribution</source>
        <translation>Distribuzione della potenza</translation>
    </message>
    <message id="power.chip_permission">
        <source>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</source>
        <translation>La potenza del chip resta vuota: su questa macchina Linux solo root può leggere i contatori di energia del processore. La sezione «Chip power on Linux» del README mostra una regola udev che lo consente.</translation>
    </message>
    <message id="power.dc_input">
        <source>DC input</source>
        <translation>Ingresso CC</translation>
    </message>
    <message id="power.battery_power">
        <source>Battery power</source>
        <translation>Potenza batteria</translation>
    </message>
    <message id="power_history.title">
        <source>Power history</source>
        <translation>Cronologia potenza</translation>
    </message>
    <message id="power_history.pwr">
        <source>PWR</source>
        <translation>PWR</translation>
    </message>
    <message id="power_history.range">
        <source>Time range</source>
        <translation>Intervallo di tempo</translation>
    </message>
    <message id="power_history.minutes">
        <source>%L1 min</source>
        <translation>%L1 min</translation>
    </message>
    <message id="power_history.waiting">
        <source>Waiting for readings</source>
        <translation>In attesa di letture</translation>
    </message>
    <message id="power_history.waiting_description">
        <source>The chart fills in once a second.</source>
        <translation>Il grafico si riempie una volta al secondo.</translation>
    </message>
    <message id="power_history.average">
        <source>Average</source>
        <translation>Media</translation>
    </message>
    <message id="power_history.peak">
        <source>Peak</source>
        <translation>Picco</translation>
    </message>
    <message id="power_history.time">
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message id="power_history.watts">
        <source>Watts</source>
        <translation>Watt</translation>
    </message>
    <message id="battery.not_detected_description">
        <source>This Mac runs on external power only.</source>
        <translation>Questo Mac funziona solo con alimentazione esterna.</translation>
    </message>
    <message id="battery.design_capacity">
        <source>Design capacity</source>
        <translation>Capacità di progetto</translation>
    </message>
    <message id="battery.full_charge_capacity">
        <source>Full charge capacity</source>
        <translation>Capacità a piena carica</translation>
    </message>
    <message id="battery.nominal_full_charge_capacity">
        <source>Nominal full charge capacity</source>
        <translation>Capacità nominale a piena carica</translation>
    </message>
    <message id="capacity.mah">
        <source>%L1 mAh</source>
        <translation>%L1 mAh</translation>
    </message>
    <message id="count.times" numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln volta</numerusform>
            <numerusform>%Ln volte</numerusform>
        </translation>
    </message>
    <message id="cells.status">
        <source>Cell voltages</source>
        <translation>Tensioni delle celle</translation>
    </message>
    <message id="cells.no_data">
        <source>No cell voltages</source>
        <translation>Nessuna tensione delle celle</translation>
    </message>
    <message id="cells.no_data_description">
        <source>This battery does not report its cells.</source>
        <translation>Questa batteria non comunica le sue celle.</translation>
    </message>
    <message id="cells.source.registry">
        <source>Reported by the battery</source>
        <translation>Comunicato dalla batteria</translation>
    </message>
    <message id="cells.source.smc">
        <source>Read from the system management controller</source>
        <translation>Letto dal controller di gestione del sistema</translation>
    </message>
    <message id="device.title">
        <source>This Mac</source>
        <translation>Questo Mac</translation>
    </message>
    <message id="device.once_per_second">
        <source>Once a second</source>
        <translation>Una volta al secondo</translation>
    </message>
    <message id="device.gpu_power">
        <source>GPU power</source>
        <translation>Potenza GPU</translation>
    </message>
    <message id="device.battery_serial">
        <source>Battery serial</source>
        <translation>Numero di serie batteria</translation>
    </message>
    <message id="device.total_operating_time">
        <source>Total operating time</source>
        <translation>Tempo di funzionamento totale</translation>
    </message>
    <message id="device.history">
        <source>Lifetime history</source>
        <translation>Cronologia dall’inizio</translation>
    </message>
    <message id="duration.days_hours">
        <source>%L1 d %L2 h</source>
        <translation>%L1 g %L2 h</translation>
    </message>
    <message id="history.max_battery_temperature">
        <source>Highest battery temperature</source>
        <translation>Temperatura massima della batteria</translation>
    </message>
    <message id="history.min_battery_temperature">
        <source>Lowest battery temperature</source>
        <translation>Temperatura minima della batteria</translation>
    </message>
    <message id="history.average_battery_temperature">
        <source>Average battery temperature</source>
        <translation>Temperatura media della batteria</translation>
    </message>
    <message id="history.max_pack_voltage">
        <source>Highest pack voltage</source>
        <translation>Tensione massima del pacco</translation>
    </message>
    <message id="history.min_pack_voltage">
        <source>Lowest pack voltage</source>
        <translation>Tensione minima del pacco</translation>
    </message>
    <message id="history.max_charge_current">
        <source>Highest charge current</source>
        <translation>Corrente di carica massima</translation>
    </message>
    <message id="history.max_discharge_current">
        <source>Highest discharge current</source>
        <translation>Corrente di scarica massima</translation>
    </message>
    <message id="history.safety_protection_count">
        <source>Safety protection events</source>
        <translation>Interventi di protezione</translation>
    </message>
    <message id="battery.packs">
        <source>Batteries</source>
        <translation>Batterie</translation>
    </message>
    <message id="battery.pack_charge">
        <source>Charge</source>
        <translation>Carica</translation>
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
        <translation>Cronologia</translation>
    </message>
    <message id="energy_history.off">
        <source>History is off.</source>
        <translation>La cronologia è disattivata.</translation>
    </message>
    <message id="energy_history.failing">
        <source>History is not being kept: %1</source>
        <translation>La cronologia non viene registrata: %1</translation>
    </message>
    <message id="energy_history.empty">
        <source>No history yet: Ferrow records energy once a minute.</source>
        <translation>Ancora nessuna cronologia: Ferrow registra l’energia una volta al minuto.</translation>
    </message>
    <message id="energy_history.since">
        <source>Ferrow has been keeping history since %1</source>
        <translation>Ferrow registra la cronologia dal %1</translation>
    </message>
    <message id="energy_history.range">
        <source>Range</source>
        <translation>Periodo</translation>
    </message>
    <message id="energy_history.week">
        <source>7 days</source>
        <translation>7 giorni</translation>
    </message>
    <message id="energy_history.month">
        <source>30 days</source>
        <translation>30 giorni</translation>
    </message>
    <message id="energy_history.year">
        <source>12 months</source>
        <translation>12 mesi</translation>
    </message>
    <message id="energy_history.energy">
        <source>Energy</source>
        <translation>Energia</translation>
    </message>
    <message id="energy_history.adapter">
        <source>From the adapter</source>
        <translation>Dall’alimentatore</translation>
    </message>
    <message id="energy_history.battery">
        <source>From the battery</source>
        <translation>Dalla batteria</translation>
    </message>
    <message id="energy_history.nothing_in_range">
        <source>Nothing recorded in this period</source>
        <translation>Nessuna registrazione in questo periodo</translation>
    </message>
    <message id="energy_history.sessions">
        <source>Recent sessions</source>
        <translation>Sessioni recenti</translation>
    </message>
    <message id="energy_history.no_sessions">
        <source>No sessions recorded yet.</source>
        <translation>Nessuna sessione registrata finora.</translation>
    </message>
    <message id="energy_history.batteries">
        <source>Battery health over time</source>
        <translation>Salute della batteria nel tempo</translation>
    </message>
    <message id="energy_history.health">
        <source>Health (%)</source>
        <translation>Salute (%)</translation>
    </message>
    <message id="energy_history.capacity">
        <source>Full-charge capacity (mAh)</source>
        <translation>Capacità a carica completa (mAh)</translation>
    </message>
    <message id="session.on_battery">
        <source>On battery</source>
        <translation>A batteria</translation>
    </message>
    <message id="session.on_adapter">
        <source>On the adapter</source>
        <translation>Con l’alimentatore</translation>
    </message>
    <message id="session.on_battery_for">
        <source>On battery for %1 · %2 used</source>
        <translation>A batteria da %1 · %2 consumati</translation>
    </message>
    <message id="session.on_adapter_for">
        <source>On the adapter for %1 · %2 delivered</source>
        <translation>Con l’alimentatore da %1 · %2 forniti</translation>
    </message>
    <message id="session.mean_peak">
        <source>Mean %1 · Peak %2</source>
        <translation>Media %1 · Picco %2</translation>
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
            <numerusform>%Ln giorno</numerusform>
            <numerusform>%Ln giorni</numerusform>
        </translation>
    </message>
    <message id="history.keep">
        <source>Keep energy history</source>
        <translation>Conserva la cronologia dell’energia</translation>
    </message>
    <message id="history.turn_off_title">
        <source>Turn off energy history?</source>
        <translation>Disattivare la cronologia dell’energia?</translation>
    </message>
    <message id="history.turn_off_text">
        <source>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</source>
        <translation>Ferrow eliminerà la cronologia dell’energia conservata su questo computer. L’operazione non può essere annullata.</translation>
    </message>
    <message id="history.turn_off_confirm">
        <source>Delete history</source>
        <translation>Elimina cronologia</translation>
    </message>
    <message id="power.computer_system">
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message id="battery.computer_external_only">
        <source>This computer runs on external power only.</source>
        <translation>Questo computer funziona solo con alimentazione esterna.</translation>
    </message>
    <message id="overview.computer_no_battery_subtitle">
        <source>This computer has no battery; all power comes from its supply.</source>
        <translation>Questo computer non ha batteria; tutta l’energia arriva dal suo alimentatore.</translation>
    </message>
    <message id="device.computer_title">
        <source>This computer</source>
        <translation>Questo computer</translation>
    </message>
    <message id="accessibility.not_available">
        <source>not available</source>
        <translation>non disponibile</translation>
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
        <translation>%1 watt</translation>
    </message>
    <message id="accessibility.volts">
        <source>%1 volts</source>
        <translation>%1 volt</translation>
    </message>
    <message id="accessibility.amperes">
        <source>%1 amperes</source>
        <translation>%1 ampere</translation>
    </message>
    <message id="accessibility.degrees_celsius">
        <source>%1 degrees Celsius</source>
        <translation>%1 gradi Celsius</translation>
    </message>
    <message id="accessibility.milliampere_hours" numerus="yes">
        <source>%Ln mAh</source>
        <translation>
            <numerusform>%Ln milliampere-ora</numerusform>
            <numerusform>%Ln milliampere-ora</numerusform>
        </translation>
    </message>
    <message id="accessibility.hertz" numerus="yes">
        <source>%Ln Hz</source>
        <translation>
            <numerusform>%Ln hertz</numerusform>
            <numerusform>%Ln hertz</numerusform>
        </translation>
    </message>
    <message id="accessibility.cell">
        <source>Cell %L1</source>
        <translation>Cella %L1</translation>
    </message>
    <message id="accessibility.flow_adapter">
        <source>Adapter %1 to system %2</source>
        <translation>Alimentatore %1 al sistema %2</translation>
    </message>
    <message id="accessibility.flow_battery">
        <source>Battery %1 to system %2</source>
        <translation>Batteria %1 al sistema %2</translation>
    </message>
    <message id="accessibility.flow_charging">
        <source>Adapter %1 to system %2 and battery %3</source>
        <translation>Alimentatore %1 al sistema %2 e alla batteria %3</translation>
    </message>
    <message id="accessibility.flow_discharging">
        <source>Adapter %1 and battery %2 to system %3</source>
        <translation>Alimentatore %1 e batteria %2 al sistema %3</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.title">
        <source>Charger cannot keep up</source>
        <translation>L’alimentatore non basta</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body">
        <source>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</source>
        <translation>La batteria si sta scaricando %1 nonostante l’alimentazione esterna sia collegata: alimentatore %2 (%3, %4), sistema %5, batteria %6.</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body_unmeasured">
        <source>The battery has been draining %1 although external power is connected: system %2, battery %3.</source>
        <translation>La batteria si sta scaricando %1 nonostante l’alimentazione esterna sia collegata: sistema %2, batteria %3.</translation>
    </message>
    <message id="alert.charging_slowly.title">
        <source>Charging slowly</source>
        <translation>Ricarica lenta</translation>
    </message>
    <message id="alert.charging_slowly.body_five_volts">
        <source>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</source>
        <translation>La sorgente USB-C fornisce solo %1, quindi la batteria si ricarica lentamente: alimentatore %2, sistema %3, batteria %4.</translation>
    </message>
    <message id="alert.charging_slowly.body_adapter">
        <source>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</source>
        <translation>L’alimentatore fornisce meno di quanto il sistema ha consumato in media %1, quindi la batteria si ricarica lentamente: alimentatore %2, sistema %3.</translation>
    </message>
    <message id="alert.battery_hot.title">
        <source>Battery hot</source>
        <translation>Batteria calda</translation>
    </message>
    <message id="alert.battery_hot.body">
        <source>The battery is at %1, at or above the limit of %2.</source>
        <translation>La batteria è a %1, pari o oltre il limite di %2.</translation>
    </message>
    <message id="alert.battery_hot.body_charging">
        <source>The battery has been at %1 or warmer %2 while charging: now %3.</source>
        <translation>Durante la ricarica la batteria è a %1 o più, e lo è %2: ora %3.</translation>
    </message>
    <message id="alert.cells_out_of_balance.title">
        <source>Battery cells out of balance</source>
        <translation>Celle della batteria sbilanciate</translation>
    </message>
    <message id="alert.cells_out_of_balance.body">
        <source>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</source>
        <translation>Le tensioni delle celle differiscono di oltre %1 a riposo, e lo fanno %2: ora di %3 (da %4 a %5).</translation>
    </message>
    <message id="alert.charge_level_reached.title">
        <source>Charge level reached</source>
        <translation>Livello di carica raggiunto</translation>
    </message>
    <message id="alert.charge_level_reached.body">
        <source>The battery has reached the chosen level of %1.</source>
        <translation>La batteria ha raggiunto il livello scelto: %1.</translation>
    </message>
    <message id="alert.for_minutes" numerus="yes">
        <source>for %Ln minutes</source>
        <translation>
            <numerusform>da %Ln minuto</numerusform>
            <numerusform>da %Ln minuti</numerusform>
        </translation>
    </message>
    <message id="alert.over_last_minutes" numerus="yes">
        <source>over the last %Ln minutes</source>
        <translation>
            <numerusform>nell’ultimo %Ln minuto</numerusform>
            <numerusform>negli ultimi %Ln minuti</numerusform>
        </translation>
    </message>
    <message id="alert.active_several" numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 e %Ln altro</numerusform>
            <numerusform>%1 e altri %Ln</numerusform>
        </translation>
    </message>
    <message id="alerts.title">
        <source>Alerts</source>
        <translation>Avvisi</translation>
    </message>
    <message id="alerts.caption" numerus="yes">
        <source>Each alert is shown once and repeated at most every %Ln minutes while it holds.</source>
        <translation>
            <numerusform>Ogni avviso appare una volta e, finché persiste, si ripete al massimo ogni %Ln minuto.</numerusform>
            <numerusform>Ogni avviso appare una volta e, finché persiste, si ripete al massimo ogni %Ln minuti.</numerusform>
        </translation>
    </message>
    <message id="alerts.hot_while_charging">
        <source>While charging, above</source>
        <translation>In carica, oltre</translation>
    </message>
    <message id="alerts.hot_any_time">
        <source>At any time, above</source>
        <translation>In qualsiasi momento, oltre</translation>
    </message>
    <message id="alerts.notifications_denied">
        <source>Notifications are turned off for Ferrow in the system&apos;s settings</source>
        <translation>Le notifiche di Ferrow sono disattivate nelle impostazioni di sistema</translation>
    </message>
    <message id="section.applications">
        <source>Applications</source>
        <translation>App</translation>
    </message>
    <message id="apps.panel_title">
        <source>Energy by application</source>
        <translation>Energia per app</translation>
    </message>
    <message id="apps.popover_title">
        <source>Most energy this session</source>
        <translation>Più energia in questa sessione</translation>
    </message>
    <message id="apps.popover_title_since_start">
        <source>Most energy since Ferrow started</source>
        <translation>Più energia dall’avvio di Ferrow</translation>
    </message>
    <message id="apps.popover_none">
        <source>Nothing measured yet this session</source>
        <translation>Ancora nulla di misurato in questa sessione</translation>
    </message>
    <message id="apps.popover_none_since_start">
        <source>Nothing measured yet</source>
        <translation>Ancora nulla di misurato</translation>
    </message>
    <message id="apps.period">
        <source>Period</source>
        <translation>Periodo</translation>
    </message>
    <message id="apps.period_session">
        <source>Session</source>
        <translation>Sessione</translation>
    </message>
    <message id="apps.period_today">
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message id="apps.period_7_days">
        <source>7 days</source>
        <translation>7 giorni</translation>
    </message>
    <message id="apps.period_30_days">
        <source>30 days</source>
        <translation>30 giorni</translation>
    </message>
    <message id="apps.covered">
        <source>Over %1</source>
        <translation>In %1</translation>
    </message>
    <message id="apps.column_application">
        <source>Application</source>
        <translation>App</translation>
    </message>
    <message id="apps.column_energy">
        <source>Energy</source>
        <translation>Energia</translation>
    </message>
    <message id="apps.column_mean_power">
        <source>Mean power</source>
        <translation>Potenza media</translation>
    </message>
    <message id="apps.column_share">
        <source>Share</source>
        <translation>Quota</translation>
    </message>
    <message id="apps.column_cpu_time">
        <source>CPU time</source>
        <translation>Tempo CPU</translation>
    </message>
    <message id="apps.column_cpu_share">
        <source>Share of CPU time</source>
        <translation>Quota del tempo CPU</translation>
    </message>
    <message id="apps.sort_by_energy">
        <source>Sort by energy</source>
        <translation>Ordina per energia</translation>
    </message>
    <message id="apps.sort_by_mean_power">
        <source>Sort by mean power</source>
        <translation>Ordina per potenza media</translation>
    </message>
    <message id="apps.self">
        <source>Ferrow (this app)</source>
        <translation>Ferrow (questa app)</translation>
    </message>
    <message id="apps.since_started">
        <source>since it started</source>
        <translation>dall’avvio</translation>
    </message>
    <message id="apps.others">
        <source>System and other users</source>
        <translation>Sistema e altri utenti</translation>
    </message>
    <message id="apps.rest">
        <source>Other applications</source>
        <translation>Altre app</translation>
    </message>
    <message id="apps.method_measured">
        <source>Measured by the system for each application</source>
        <translation>Misurata dal sistema per ogni app</translation>
    </message>
    <message id="apps.method_chip_share">
        <source>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</source>
        <translation>Stimata: l’energia misurata del processore, ripartita in base al tempo CPU di ogni app</translation>
    </message>
    <message id="apps.method_system_share">
        <source>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</source>
        <translation>Stimata: la quota del processore nella potenza misurata del sistema, ripartita in base al tempo CPU</translation>
    </message>
    <message id="apps.method_cpu_time">
        <source>CPU time only: this machine does not measure energy</source>
        <translation>Solo tempo CPU: questo computer non misura l’energia</translation>
    </message>
    <message id="apps.estimated_legend">
        <source>%1 marks an estimate</source>
        <translation>%1 indica una stima</translation>
    </message>
    <message id="apps.estimated">
        <source>estimated</source>
        <translation>stimata</translation>
    </message>
    <message id="apps.measured">
        <source>measured</source>
        <translation>misurata</translation>
    </message>
    <message id="apps.none">
        <source>Nothing recorded for this period yet</source>
        <translation>Ancora nulla di registrato per questo periodo</translation>
    </message>
    <message id="apps.history_off">
        <source>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</source>
        <translation>Ferrow non conserva alcuna cronologia: solo la sessione attuale ha un elenco. Attiva «Conserva la cronologia dell’energia» in Cronologia per tenere i prossimi giorni.</translation>
    </message>
    <message id="apps.reading">
        <source>Reading…</source>
        <translation>Lettura…</translation>
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
        <translation>%1 percento</translation>
    </message>
    <message id="accessibility.watt_hours">
        <source>%1 watt-hours</source>
        <translation>%1 wattora</translation>
    </message>
    <message id="accessibility.milliwatt_hours" numerus="yes">
        <source>%Ln mWh</source>
        <translation>
            <numerusform>%Ln milliwattora</numerusform>
            <numerusform>%Ln milliwattora</numerusform>
        </translation>
    </message>
</context>
</TS>

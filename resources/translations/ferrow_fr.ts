<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="status.external_power">
        <source>External power</source>
        <translation>Sur secteur</translation>
    </message>
    <message id="status.waiting_telemetry">
        <source>Waiting for telemetry</source>
        <translation>En attente des mesures</translation>
    </message>
    <message id="status.on_battery">
        <source>On battery</source>
        <translation>Sur batterie</translation>
    </message>
    <message id="status.charging">
        <source>Charging</source>
        <translation>En charge</translation>
    </message>
    <message id="status.power_connected">
        <source>Not charging</source>
        <translation>Pas en charge</translation>
    </message>
    <message id="status.fully_charged">
        <source>Fully charged</source>
        <translation>Chargée</translation>
    </message>
    <message id="power.ac_connected">
        <source>AC power connected</source>
        <translation>Adaptateur secteur branché</translation>
    </message>
    <message id="power.dc_disconnected">
        <source>No external power</source>
        <translation>Aucune alimentation externe</translation>
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
        <translation>Bon</translation>
    </message>
    <message id="battery.health.fair">
        <source>Fair</source>
        <translation>Moyen</translation>
    </message>
    <message id="battery.health.poor">
        <source>Poor</source>
        <translation>Mauvais</translation>
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
        <translation>Moniteur d’énergie</translation>
    </message>
    <message id="app.menu_subtitle_simulated">
        <source>Simulated notebook · not this machine</source>
        <translation>Portable simulé · pas cette machine</translation>
    </message>
    <message id="app.menu_subtitle_simulated_desktop">
        <source>Simulated desktop · not this machine</source>
        <translation>Ordinateur de bureau simulé · pas cette machine</translation>
    </message>
    <message id="app.version">
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message id="status.live">
        <source>Live</source>
        <translation>En direct</translation>
    </message>
    <message id="status.waiting">
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message id="power.battery_discharge">
        <source>BATTERY DISCHARGE</source>
        <translation>DÉCHARGE BATTERIE</translation>
    </message>
    <message id="power.system_total">
        <source>System total</source>
        <translation>Total système</translation>
    </message>
    <message id="power.live_flow">
        <source>Live power flow</source>
        <translation>Flux d’énergie en direct</translation>
    </message>
    <message id="power.adapter">
        <source>Adapter</source>
        <translation>Adaptateur</translation>
    </message>
    <message id="power.mac_system">
        <source>Mac system</source>
        <translation>Système Mac</translation>
    </message>
    <message id="device.power_source">
        <source>Power source</source>
        <translation>Source d’alimentation</translation>
    </message>
    <message id="device.sample_rate">
        <source>Sample rate</source>
        <translation>Fréquence de mesure</translation>
    </message>
    <message id="battery.title">
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message id="battery.not_detected">
        <source>No battery detected</source>
        <translation>Aucune batterie détectée</translation>
    </message>
    <message id="battery.desktop_description">
        <source>This Mac runs on external power only.</source>
        <translation>Ce Mac fonctionne uniquement sur alimentation externe.</translation>
    </message>
    <message id="battery.cycle_count">
        <source>Cycle count</source>
        <translation>Nombre de cycles</translation>
    </message>
    <message id="battery.voltage">
        <source>Voltage</source>
        <translation>Tension</translation>
    </message>
    <message id="battery.current">
        <source>Current</source>
        <translation>Courant</translation>
    </message>
    <message id="battery.charge_status">
        <source>Charge status</source>
        <translation>État de charge</translation>
    </message>
    <message id="battery.status">
        <source>Battery status</source>
        <translation>État de la batterie</translation>
    </message>
    <message id="battery.estimated_full">
        <source>Time to full</source>
        <translation>Charge complète dans</translation>
    </message>
    <message id="battery.health">
        <source>Health</source>
        <translation>Santé</translation>
    </message>
    <message id="battery.temperature">
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message id="battery.health_value">
        <source>%1% · %2</source>
        <translation>%1 % · %2</translation>
    </message>
    <message id="setting.login_awaiting_approval">
        <source>Approve Ferrow in System Settings › Login Items to start it at login</source>
        <translation>À autoriser dans Réglages Système › Ouverture</translation>
    </message>
    <message id="setting.login_needs_applications">
        <source>Move Ferrow to Applications to start it at login</source>
        <translation>Placez Ferrow dans Applications pour l’ouvrir à la connexion</translation>
    </message>
    <message id="setting.launch_at_login">
        <source>Launch at login</source>
        <translation>Ouvrir à la connexion</translation>
    </message>
    <message id="setting.menu_bar_power">
        <source>Show watts in menu bar</source>
        <translation>Afficher les watts dans la barre des menus</translation>
    </message>
    <message id="action.open_details">
        <source>Open details</source>
        <translation>Ouvrir les détails</translation>
    </message>
    <message id="action.open_details_subtitle">
        <source>Charts, cells and battery history</source>
        <translation>Graphiques, cellules et historique de la batterie</translation>
    </message>
    <message id="action.open_official_website">
        <source>Open the Ferrow website</source>
        <translation>Ouvrir le site web de Ferrow</translation>
    </message>
    <message id="action.quit">
        <source>Quit Ferrow</source>
        <translation>Quitter Ferrow</translation>
    </message>
    <message id="action.show_dashboard">
        <source>Show dashboard</source>
        <translation>Afficher le tableau de bord</translation>
    </message>
    <message id="tray.no_tray_notice">
        <source>No menu-bar area on this desktop: the dashboard opens as a window.</source>
        <translation>Pas de zone de barre des menus sur ce bureau : le tableau de bord s’ouvre dans une fenêtre.</translation>
    </message>
    <message id="tray.tooltip">
        <source>Ferrow · %1</source>
        <translation>Ferrow · %1</translation>
    </message>
    <message id="tray.tooltip_simulated">
        <source>Ferrow (simulated) · %1</source>
        <translation>Ferrow (simulé) · %1</translation>
    </message>
    <message id="window.device_details">
        <source>Device details</source>
        <translation>Détails de l’appareil</translation>
    </message>
    <message id="app.subtitle">
        <source>Power, battery and cells at a glance</source>
        <translation>Puissance, batterie et cellules en un coup d’œil</translation>
    </message>
    <message id="action.refresh">
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message id="action.refresh_help">
        <source>Take a reading now</source>
        <translation>Prendre une mesure maintenant</translation>
    </message>
    <message id="action.toggle_sidebar">
        <source>Show or hide the sidebar</source>
        <translation>Afficher ou masquer la barre latérale</translation>
    </message>
    <message id="sidebar.monitor">
        <source>Monitor</source>
        <translation>Surveillance</translation>
    </message>
    <message id="sidebar.system">
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message id="sidebar.updated_at">
        <source>Updated at %1</source>
        <translation>Mis à jour à %1</translation>
    </message>
    <message id="accessibility.scroll_to">
        <source>Scroll to %1</source>
        <translation>Aller à « %1 »</translation>
    </message>
    <message id="section.overview">
        <source>Overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message id="section.power">
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message id="section.battery">
        <source>Charge and health</source>
        <translation>Charge et santé</translation>
    </message>
    <message id="section.cells">
        <source>Cells</source>
        <translation>Cellules</translation>
    </message>
    <message id="section.device">
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message id="overview.external_power">
        <source>Running on external power</source>
        <translation>Fonctionne sur alimentation externe</translation>
    </message>
    <message id="overview.charging">
        <source>Charging</source>
        <translation>En charge</translation>
    </message>
    <message id="overview.no_battery_subtitle">
        <source>This Mac has no battery; all power comes from its supply.</source>
        <translation>Ce Mac n’a pas de batterie ; toute l’énergie vient de son alimentation.</translation>
    </message>
    <message id="overview.power_distribution_subtitle">
        <source>Adapter power is shared between the system and the battery.</source>
        <translation>La puissance de l’adaptateur est partagée entre le système et la batterie.</translation>
    </message>
    <message id="overview.battery_subtitle">
        <source>The battery supplies the whole system.</source>
        <translation>La batterie alimente tout le système.</translation>
    </message>
    <message id="power.distribution">
        <source>Power distribution</source>
        <translation>Répartition de la puissance</translation>
    </message>
    <message id="power.chip_permission">
        <source>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</source>
        <translation>La puissance de la puce reste vide : sur cette machine Linux, seul root peut lire les compteurs d’énergie du processeur. La section « Chip power on Linux » du README donne une règle udev qui l’autorise.</translation>
    </message>
    <message id="power.dc_input">
        <source>DC input</source>
        <translation>Entrée CC</translation>
    </message>
    <message id="power.battery_power">
        <source>Battery power</source>
        <translation>Puissance de la batterie</translation>
    </message>
    <message id="power_history.title">
        <source>Power history</source>
        <translation>Historique de puissance</translation>
    </message>
    <message id="power_history.pwr">
        <source>PWR</source>
        <translation>PWR</translation>
    </message>
    <message id="power_history.range">
        <source>Time range</source>
        <translation>Période</translation>
    </message>
    <message id="power_history.minutes">
        <source>%L1 min</source>
        <translation>%L1 min</translation>
    </message>
    <message id="power_history.waiting">
        <source>Waiting for readings</source>
        <translation>En attente de mesures</translation>
    </message>
    <message id="power_history.waiting_description">
        <source>The chart fills in once a second.</source>
        <translation>Le graphique se remplit chaque seconde.</translation>
    </message>
    <message id="power_history.average">
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
    <message id="power_history.peak">
        <source>Peak</source>
        <translation>Pic</translation>
    </message>
    <message id="power_history.time">
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message id="power_history.watts">
        <source>Watts</source>
        <translation>Watts</translation>
    </message>
    <message id="battery.not_detected_description">
        <source>This Mac runs on external power only.</source>
        <translation>Ce Mac fonctionne uniquement sur alimentation externe.</translation>
    </message>
    <message id="battery.design_capacity">
        <source>Design capacity</source>
        <translation>Capacité d’origine</translation>
    </message>
    <message id="battery.full_charge_capacity">
        <source>Full charge capacity</source>
        <translation>Capacité de charge complète</translation>
    </message>
    <message id="battery.nominal_full_charge_capacity">
        <source>Nominal full charge capacity</source>
        <translation>Capacité nominale de charge complète</translation>
    </message>
    <message id="capacity.mah">
        <source>%L1 mAh</source>
        <translation>%L1 mAh</translation>
    </message>
    <message id="count.times" numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln fois</numerusform>
            <numerusform>%Ln fois</numerusform>
        </translation>
    </message>
    <message id="cells.status">
        <source>Cell voltages</source>
        <translation>Tensions des cellules</translation>
    </message>
    <message id="cells.no_data">
        <source>No cell voltages</source>
        <translation>Aucune tension de cellule</translation>
    </message>
    <message id="cells.no_data_description">
        <source>This battery does not report its cells.</source>
        <translation>Cette batterie ne signale pas ses cellules.</translation>
    </message>
    <message id="cells.source.registry">
        <source>Reported by the battery</source>
        <translation>Indiqué par la batterie</translation>
    </message>
    <message id="cells.source.smc">
        <source>Read from the system management controller</source>
        <translation>Lu depuis le contrôleur de gestion du système</translation>
    </message>
    <message id="device.title">
        <source>This Mac</source>
        <translation>Ce Mac</translation>
    </message>
    <message id="device.once_per_second">
        <source>Once a second</source>
        <translation>Une fois par seconde</translation>
    </message>
    <message id="device.gpu_power">
        <source>GPU power</source>
        <translation>Puissance du GPU</translation>
    </message>
    <message id="device.battery_serial">
        <source>Battery serial</source>
        <translation>N° de série de la batterie</translation>
    </message>
    <message id="device.total_operating_time">
        <source>Total operating time</source>
        <translation>Durée totale de fonctionnement</translation>
    </message>
    <message id="device.history">
        <source>Lifetime history</source>
        <translation>Historique depuis la mise en service</translation>
    </message>
    <message id="duration.days_hours">
        <source>%L1 d %L2 h</source>
        <translation>%L1 j %L2 h</translation>
    </message>
    <message id="history.max_battery_temperature">
        <source>Highest battery temperature</source>
        <translation>Température maximale de la batterie</translation>
    </message>
    <message id="history.min_battery_temperature">
        <source>Lowest battery temperature</source>
        <translation>Température minimale de la batterie</translation>
    </message>
    <message id="history.average_battery_temperature">
        <source>Average battery temperature</source>
        <translation>Température moyenne de la batterie</translation>
    </message>
    <message id="history.max_pack_voltage">
        <source>Highest pack voltage</source>
        <translation>Tension maximale du bloc</translation>
    </message>
    <message id="history.min_pack_voltage">
        <source>Lowest pack voltage</source>
        <translation>Tension minimale du bloc</translation>
    </message>
    <message id="history.max_charge_current">
        <source>Highest charge current</source>
        <translation>Courant de charge maximal</translation>
    </message>
    <message id="history.max_discharge_current">
        <source>Highest discharge current</source>
        <translation>Courant de décharge maximal</translation>
    </message>
    <message id="history.safety_protection_count">
        <source>Safety protection events</source>
        <translation>Événements de protection</translation>
    </message>
    <message id="battery.packs">
        <source>Batteries</source>
        <translation>Batteries</translation>
    </message>
    <message id="battery.pack_charge">
        <source>Charge</source>
        <translation>Charge</translation>
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
        <translation>Historique</translation>
    </message>
    <message id="energy_history.off">
        <source>History is off.</source>
        <translation>L’historique est désactivé.</translation>
    </message>
    <message id="energy_history.failing">
        <source>History is not being kept: %1</source>
        <translation>L’historique n’est pas conservé : %1</translation>
    </message>
    <message id="energy_history.empty">
        <source>No history yet: Ferrow records energy once a minute.</source>
        <translation>Pas encore d’historique : Ferrow enregistre l’énergie une fois par minute.</translation>
    </message>
    <message id="energy_history.since">
        <source>Ferrow has been keeping history since %1</source>
        <translation>Ferrow conserve l’historique depuis le %1</translation>
    </message>
    <message id="energy_history.range">
        <source>Range</source>
        <translation>Période</translation>
    </message>
    <message id="energy_history.week">
        <source>7 days</source>
        <translation>7 jours</translation>
    </message>
    <message id="energy_history.month">
        <source>30 days</source>
        <translation>30 jours</translation>
    </message>
    <message id="energy_history.year">
        <source>12 months</source>
        <translation>12 mois</translation>
    </message>
    <message id="energy_history.energy">
        <source>Energy</source>
        <translation>Énergie</translation>
    </message>
    <message id="energy_history.adapter">
        <source>From the adapter</source>
        <translation>Depuis l’adaptateur</translation>
    </message>
    <message id="energy_history.battery">
        <source>From the battery</source>
        <translation>Depuis la batterie</translation>
    </message>
    <message id="energy_history.nothing_in_range">
        <source>Nothing recorded in this period</source>
        <translation>Rien d’enregistré sur cette période</translation>
    </message>
    <message id="energy_history.sessions">
        <source>Recent sessions</source>
        <translation>Sessions récentes</translation>
    </message>
    <message id="energy_history.no_sessions">
        <source>No sessions recorded yet.</source>
        <translation>Aucune session enregistrée pour l’instant.</translation>
    </message>
    <message id="energy_history.batteries">
        <source>Battery health over time</source>
        <translation>Santé de la batterie dans le temps</translation>
    </message>
    <message id="energy_history.health">
        <source>Health (%)</source>
        <translation>Santé (%)</translation>
    </message>
    <message id="energy_history.capacity">
        <source>Full-charge capacity (mAh)</source>
        <translation>Capacité à pleine charge (mAh)</translation>
    </message>
    <message id="session.on_battery">
        <source>On battery</source>
        <translation>Sur batterie</translation>
    </message>
    <message id="session.on_adapter">
        <source>On the adapter</source>
        <translation>Sur l’adaptateur</translation>
    </message>
    <message id="session.on_battery_for">
        <source>On battery for %1 · %2 used</source>
        <translation>Sur batterie depuis %1 · %2 consommés</translation>
    </message>
    <message id="session.on_adapter_for">
        <source>On the adapter for %1 · %2 delivered</source>
        <translation>Sur l’adaptateur depuis %1 · %2 fournis</translation>
    </message>
    <message id="session.mean_peak">
        <source>Mean %1 · Peak %2</source>
        <translation>Moyenne %1 · Pic %2</translation>
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
            <numerusform>%Ln jour</numerusform>
            <numerusform>%Ln jours</numerusform>
        </translation>
    </message>
    <message id="history.keep">
        <source>Keep energy history</source>
        <translation>Conserver l’historique d’énergie</translation>
    </message>
    <message id="history.turn_off_title">
        <source>Turn off energy history?</source>
        <translation>Désactiver l’historique d’énergie ?</translation>
    </message>
    <message id="history.turn_off_text">
        <source>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</source>
        <translation>Ferrow supprimera l’historique d’énergie conservé sur cet ordinateur. Cette action est irréversible.</translation>
    </message>
    <message id="history.turn_off_confirm">
        <source>Delete history</source>
        <translation>Supprimer l’historique</translation>
    </message>
    <message id="power.computer_system">
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message id="battery.computer_external_only">
        <source>This computer runs on external power only.</source>
        <translation>Cet ordinateur fonctionne uniquement sur alimentation externe.</translation>
    </message>
    <message id="overview.computer_no_battery_subtitle">
        <source>This computer has no battery; all power comes from its supply.</source>
        <translation>Cet ordinateur n’a pas de batterie ; toute l’énergie vient de son alimentation.</translation>
    </message>
    <message id="device.computer_title">
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message id="accessibility.not_available">
        <source>not available</source>
        <translation>non disponible</translation>
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
        <translation>%1 watts</translation>
    </message>
    <message id="accessibility.volts">
        <source>%1 volts</source>
        <translation>%1 volts</translation>
    </message>
    <message id="accessibility.amperes">
        <source>%1 amperes</source>
        <translation>%1 ampères</translation>
    </message>
    <message id="accessibility.degrees_celsius">
        <source>%1 degrees Celsius</source>
        <translation>%1 degrés Celsius</translation>
    </message>
    <message id="accessibility.milliampere_hours" numerus="yes">
        <source>%Ln mAh</source>
        <translation>
            <numerusform>%Ln milliampère-heure</numerusform>
            <numerusform>%Ln milliampères-heures</numerusform>
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
        <translation>Cellule %L1</translation>
    </message>
    <message id="accessibility.flow_adapter">
        <source>Adapter %1 to system %2</source>
        <translation>Adaptateur %1 vers le système %2</translation>
    </message>
    <message id="accessibility.flow_battery">
        <source>Battery %1 to system %2</source>
        <translation>Batterie %1 vers le système %2</translation>
    </message>
    <message id="accessibility.flow_charging">
        <source>Adapter %1 to system %2 and battery %3</source>
        <translation>Adaptateur %1 vers le système %2 et la batterie %3</translation>
    </message>
    <message id="accessibility.flow_discharging">
        <source>Adapter %1 and battery %2 to system %3</source>
        <translation>Adaptateur %1 et batterie %2 vers le système %3</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.title">
        <source>Charger cannot keep up</source>
        <translation>Le chargeur ne suffit pas</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body">
        <source>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</source>
        <translation>La batterie se décharge %1 alors que l’alimentation externe est branchée : adaptateur %2 (%3, %4), système %5, batterie %6.</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body_unmeasured">
        <source>The battery has been draining %1 although external power is connected: system %2, battery %3.</source>
        <translation>La batterie se décharge %1 alors que l’alimentation externe est branchée : système %2, batterie %3.</translation>
    </message>
    <message id="alert.charging_slowly.title">
        <source>Charging slowly</source>
        <translation>Charge lente</translation>
    </message>
    <message id="alert.charging_slowly.body_five_volts">
        <source>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</source>
        <translation>La source USB-C ne fournit que %1, la batterie se charge donc lentement : adaptateur %2, système %3, batterie %4.</translation>
    </message>
    <message id="alert.charging_slowly.body_adapter">
        <source>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</source>
        <translation>L’adaptateur fournit moins que la consommation moyenne du système %1, la batterie se charge donc lentement : adaptateur %2, système %3.</translation>
    </message>
    <message id="alert.battery_hot.title">
        <source>Battery hot</source>
        <translation>Batterie chaude</translation>
    </message>
    <message id="alert.battery_hot.body">
        <source>The battery is at %1, at or above the limit of %2.</source>
        <translation>La batterie est à %1, au niveau ou au-delà de la limite de %2.</translation>
    </message>
    <message id="alert.battery_hot.body_charging">
        <source>The battery has been at %1 or warmer %2 while charging: now %3.</source>
        <translation>La batterie est à %1 ou plus pendant la charge, et ce %2 : actuellement %3.</translation>
    </message>
    <message id="alert.cells_out_of_balance.title">
        <source>Battery cells out of balance</source>
        <translation>Cellules de la batterie déséquilibrées</translation>
    </message>
    <message id="alert.cells_out_of_balance.body">
        <source>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</source>
        <translation>Les tensions des cellules s’écartent de plus de %1 au repos, et ce %2 : actuellement %3 d’écart (de %4 à %5).</translation>
    </message>
    <message id="alert.charge_level_reached.title">
        <source>Charge level reached</source>
        <translation>Niveau de charge atteint</translation>
    </message>
    <message id="alert.charge_level_reached.body">
        <source>The battery has reached the chosen level of %1.</source>
        <translation>La batterie a atteint le niveau choisi de %1.</translation>
    </message>
    <message id="alert.for_minutes" numerus="yes">
        <source>for %Ln minutes</source>
        <translation>
            <numerusform>depuis %Ln minute</numerusform>
            <numerusform>depuis %Ln minutes</numerusform>
        </translation>
    </message>
    <message id="alert.over_last_minutes" numerus="yes">
        <source>over the last %Ln minutes</source>
        <translation>
            <numerusform>sur la dernière %Ln minute</numerusform>
            <numerusform>sur les %Ln dernières minutes</numerusform>
        </translation>
    </message>
    <message id="alert.active_several" numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 et %Ln autre</numerusform>
            <numerusform>%1 et %Ln autres</numerusform>
        </translation>
    </message>
    <message id="alerts.title">
        <source>Alerts</source>
        <translation>Alertes</translation>
    </message>
    <message id="alerts.caption" numerus="yes">
        <source>Each alert is shown once and repeated at most every %Ln minutes while it holds.</source>
        <translation>
            <numerusform>Chaque alerte s’affiche une fois, puis au plus toutes les %Ln minute tant qu’elle persiste.</numerusform>
            <numerusform>Chaque alerte s’affiche une fois, puis au plus toutes les %Ln minutes tant qu’elle persiste.</numerusform>
        </translation>
    </message>
    <message id="alerts.hot_while_charging">
        <source>While charging, above</source>
        <translation>En charge, au-dessus de</translation>
    </message>
    <message id="alerts.hot_any_time">
        <source>At any time, above</source>
        <translation>À tout moment, au-dessus de</translation>
    </message>
    <message id="alerts.notifications_denied">
        <source>Notifications are turned off for Ferrow in the system&apos;s settings</source>
        <translation>Les notifications de Ferrow sont désactivées dans les réglages du système</translation>
    </message>
    <message id="section.applications">
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message id="apps.panel_title">
        <source>Energy by application</source>
        <translation>Énergie par application</translation>
    </message>
    <message id="apps.popover_title">
        <source>Most energy this session</source>
        <translation>Plus forte consommation de la session</translation>
    </message>
    <message id="apps.popover_title_since_start">
        <source>Most energy since Ferrow started</source>
        <translation>Plus d’énergie depuis le lancement de Ferrow</translation>
    </message>
    <message id="apps.popover_none">
        <source>Nothing measured yet this session</source>
        <translation>Rien de mesuré pour l’instant dans cette session</translation>
    </message>
    <message id="apps.popover_none_since_start">
        <source>Nothing measured yet</source>
        <translation>Rien de mesuré pour l’instant</translation>
    </message>
    <message id="apps.period">
        <source>Period</source>
        <translation>Période</translation>
    </message>
    <message id="apps.period_session">
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message id="apps.period_today">
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message id="apps.period_7_days">
        <source>7 days</source>
        <translation>7 jours</translation>
    </message>
    <message id="apps.period_30_days">
        <source>30 days</source>
        <translation>30 jours</translation>
    </message>
    <message id="apps.covered">
        <source>Over %1</source>
        <translation>Sur %1</translation>
    </message>
    <message id="apps.column_application">
        <source>Application</source>
        <translation>Application</translation>
    </message>
    <message id="apps.column_energy">
        <source>Energy</source>
        <translation>Énergie</translation>
    </message>
    <message id="apps.column_mean_power">
        <source>Mean power</source>
        <translation>Puissance moyenne</translation>
    </message>
    <message id="apps.column_share">
        <source>Share</source>
        <translation>Part</translation>
    </message>
    <message id="apps.column_cpu_time">
        <source>CPU time</source>
        <translation>Temps CPU</translation>
    </message>
    <message id="apps.column_cpu_share">
        <source>Share of CPU time</source>
        <translation>Part du temps CPU</translation>
    </message>
    <message id="apps.sort_by_energy">
        <source>Sort by energy</source>
        <translation>Trier par énergie</translation>
    </message>
    <message id="apps.sort_by_mean_power">
        <source>Sort by mean power</source>
        <translation>Trier par puissance moyenne</translation>
    </message>
    <message id="apps.self">
        <source>Ferrow (this app)</source>
        <translation>Ferrow (cette app)</translation>
    </message>
    <message id="apps.since_started">
        <source>since it started</source>
        <translation>depuis son lancement</translation>
    </message>
    <message id="apps.others">
        <source>System and other users</source>
        <translation>Système et autres utilisateurs</translation>
    </message>
    <message id="apps.rest">
        <source>Other applications</source>
        <translation>Autres applications</translation>
    </message>
    <message id="apps.method_measured">
        <source>Measured by the system for each application</source>
        <translation>Mesurée par le système pour chaque application</translation>
    </message>
    <message id="apps.method_chip_share">
        <source>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</source>
        <translation>Estimée : l’énergie mesurée du processeur, répartie selon le temps CPU de chaque application</translation>
    </message>
    <message id="apps.method_system_share">
        <source>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</source>
        <translation>Estimée : la part du processeur dans la puissance mesurée du système, répartie selon le temps CPU</translation>
    </message>
    <message id="apps.method_cpu_time">
        <source>CPU time only: this machine does not measure energy</source>
        <translation>Temps CPU seulement : cet ordinateur ne mesure pas l’énergie</translation>
    </message>
    <message id="apps.estimated_legend">
        <source>%1 marks an estimate</source>
        <translation>%1 indique une estimation</translation>
    </message>
    <message id="apps.estimated">
        <source>estimated</source>
        <translation>estimée</translation>
    </message>
    <message id="apps.measured">
        <source>measured</source>
        <translation>mesurée</translation>
    </message>
    <message id="apps.none">
        <source>Nothing recorded for this period yet</source>
        <translation>Rien d’enregistré pour cette période pour l’instant</translation>
    </message>
    <message id="apps.history_off">
        <source>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</source>
        <translation>Ferrow ne conserve aucun historique : seule la session en cours a une liste. Activez « Conserver l’historique d’énergie » dans Historique pour garder les jours à venir.</translation>
    </message>
    <message id="apps.reading">
        <source>Reading…</source>
        <translation>Lecture…</translation>
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
        <translation>%1 pour cent</translation>
    </message>
    <message id="accessibility.watt_hours">
        <source>%1 watt-hours</source>
        <translation>%1 wattheures</translation>
    </message>
    <message id="accessibility.milliwatt_hours" numerus="yes">
        <source>%Ln mWh</source>
        <translation>
            <numerusform>%Ln milliwattheure</numerusform>
            <numerusform>%Ln milliwattheures</numerusform>
        </translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="KS_help">
        <source></source>
        <translation>Kestrom lit le diagnostic embarqué (OBD-II) de votre voiture au moyen d'un adaptateur de type ELM327.

Connexion : branchez l'adaptateur sur la prise de diagnostic de la voiture, en général sous le volant, et mettez le contact. Avec un adaptateur Wi-Fi, connectez d'abord cet ordinateur au réseau sans fil de l'adaptateur, puis choisissez Wi-Fi dans les préférences et saisissez l'adresse et le port (le plus souvent 192.168.0.10 et 35000). Avec un adaptateur Bluetooth, choisissez Bluetooth ; la première tâche que vous lancez demande quel appareil utiliser.

Codes défaut : « Lire les codes » affiche les codes enregistrés avec leur signification, le témoin d'anomalie et l'état des moniteurs. « Effacer les codes » efface les codes, éteint le témoin et remet les moniteurs à zéro ; faites-le moteur arrêté, et seulement après avoir noté les codes.

Données en direct : choisissez le type d'enregistrement et appuyez sur le bouton de départ. Chaque paramètre a son petit graphique ; cliquez dessus pour le voir en grand et sur le cadran, maintenez Ctrl pour en choisir un autre pour le second cadran. La liste des paramètres et les unités se règlent dans les préférences.

Journaux : lorsque l'enregistrement est activé dans les préférences, chaque session est écrite dans son propre fichier du dossier « loggies » ; le bouton Journaux indique où il se trouve.

Expert : tapez une commande de l'adaptateur (AT I) ou une requête (01 0C) et lisez la réponse brute.

Pas de réponse ? Vérifiez le contact, la prise et la liaison sans fil, et fermez les autres programmes qui utilisent l'adaptateur.</translation>
    </message>
    <message id="no_reply_from_car_MSG">
        <source></source>
        <translation>La voiture n'a pas répondu. Mettez le contact et réessayez.</translation>
    </message>
    <message id="no_reply_from_car_MSG_BT">
        <source></source>
        <translation>L'adaptateur fonctionne, mais la voiture n'a pas répondu.

Veuillez vérifier que :
• le contact est mis ou le moteur tourne ;
• l'adaptateur est bien enfoncé dans la prise de diagnostic ;
• l'adaptateur choisi dans la liste Bluetooth est celui de cette voiture ;
• aucun téléphone ni autre programme n'utilise l'adaptateur en même temps ;
• la voiture prend en charge OBD-II.</translation>
    </message>
    <message id="no_reply_from_car_MSG_TCP">
        <source></source>
        <translation>L'adaptateur fonctionne, mais la voiture n'a pas répondu.

Veuillez vérifier que :
• le contact est mis ou le moteur tourne ;
• l'adaptateur est bien enfoncé dans la prise de diagnostic ;
• cet ordinateur est connecté au réseau Wi-Fi de l'adaptateur de cette voiture ;
• aucun téléphone ni autre programme n'utilise l'adaptateur en même temps ;
• la voiture prend en charge OBD-II.</translation>
    </message>
    <message id="init_OBD_error_MSG">
        <source></source>
        <translation>L'adaptateur n'a pas pu initialiser le bus de diagnostic de la voiture. Coupez puis remettez le contact, vérifiez que l'adaptateur est bien enfoncé dans la prise de diagnostic, et réessayez.</translation>
    </message>
    <message id="blank_input_MSG">
        <source></source>
        <translation>Tapez d'abord une commande, par exemple AT I ou 01 0C.</translation>
    </message>
    <message id="FIELD_ENGINE_MPG">
        <source></source>
        <translation>Économie de carburant</translation>
    </message>
    <message id="FIELD_ENGINE_BOOST">
        <source></source>
        <translation>Pression de suralimentation</translation>
    </message>
</context>
</TS>

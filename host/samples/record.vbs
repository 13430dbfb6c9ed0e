' A complete host in VBScript: shows the biller dialog modally and prints the record that comes back.
'
'   cscript //nologo record.vbs C:\Apps\NORVIK\Bin\          (the folder of your installation)
Option Explicit

Const Cancelled = 50000

Dim biller, result
Set biller = CreateObject("NVRandom.ClsRandom")

If WScript.Arguments.Count > 0 Then biller.DLLPath = WScript.Arguments(0)
biller.Provpostalstr = "ONKONLONMONNONP"
biller.Add = True
biller.PayeeIndBusnTag = "2"
biller.PayeeIndBussFlg = " "
biller.PayeeName = "LAKEHEAD HYDRO AND POWER"
biller.PayeeBillAccount = "4410772903"
biller.PayeeStreet = "1200 HARBOUR STREET"
biller.PayeeCity = "THUNDER BAY"
biller.PayeeProv = "ON"
biller.PayeeCountry = "CA"
biller.PayeePostal = "P7B1A1"
biller.PayeePhoneArea = "807"
biller.PayeePhoneNumber = "5550142"
biller.PayeeEmail = "billing@lakeheadhydro.example"
biller.IPCurrencyList = Array("CHF - Swiss Franc", "SEK - Swedish Krona")

result = biller.ShowForm()
If result = 0 Then
  WScript.Echo "Name:     " & biller.PayeeName & ", account " & biller.PayeeBillAccount
  WScript.Echo "Address:  " & biller.PayeeStreet & ", " & biller.PayeeCity & " " & biller.PayeeProv & " " & _
               biller.PayeePostal & ", " & biller.PayeeCountry
  WScript.Echo "Phone:    +" & biller.PayeePhoneCountryCode & " " & biller.PayeePhoneArea & " " & biller.PayeePhoneNumber
  WScript.Echo "E-mail:   " & biller.PayeeEmail
  WScript.Echo "Currency: " & biller.PayeeCurrency
ElseIf result = Cancelled Then
  WScript.Echo "cancelled"
Else
  WScript.Echo "error " & result
  WScript.Quit 1
End If
